#!/usr/bin/env bash
# Every relative link of README.md and docs/*.md must name a file, and a part of a page must be one of its headings.
# Usage: check_links.sh PROJECT_FOLDER
set -euo pipefail
cd "$1"

# The anchors of a page's headings, as the web shows them: lower case, blanks as hyphens, punctuation left out.
anchors() {
    sed '/^```/,/^```/d' "$1" | sed -n 's/^#\{1,6\} \{1,\}//p' | tr '[:upper:]' '[:lower:]' |
        sed 's/[^[:alnum:] _-]//g; s/ /-/g'
}

faults=0
links=0
for page in README.md docs/*.md; do
    while IFS= read -r link; do
        case "$link" in
            *://* | mailto:*) continue ;;
        esac
        links=$((links + 1))
        file=${link%%#*}
        target=$page
        [ -z "$file" ] || target=$(dirname "$page")/$file
        if [ ! -e "$target" ]; then
            echo "$page: no file for the link $link"
            faults=$((faults + 1))
            continue
        fi
        case "$link" in
            *.md\#* | \#*)
                if ! anchors "$target" | grep -qxF -e "${link#*#}"; then
                    echo "$page: no heading for the link $link"
                    faults=$((faults + 1))
                fi
                ;;
        esac
    done < <(sed '/^```/,/^```/d' "$page" | grep -oE '\]\([^)]+\)' | sed 's/^](//; s/)$//; s/ ".*"$//')
done

if [ "$links" -eq 0 ]; then
    echo "No links found: the pages are not where they were."
    exit 1
fi
[ "$faults" -eq 0 ] || exit 1
echo "All $links links lead somewhere."
