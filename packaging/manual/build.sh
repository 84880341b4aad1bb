#!/usr/bin/env bash
# Makes the HTML manual of the pages in docs/, to be installed beside them: it shares their pictures. Needs pandoc.
# Usage: build.sh PROJECT_FOLDER OUTPUT_FOLDER
set -euo pipefail
project=$1
out=$2
tools=$project/packaging/manual

rm -rf "$out"
mkdir -p "$out"
for page in "$project"/docs/*.md; do
    name=$(basename "$page" .md)
    [ "$name" != README ] || name=index
    pandoc --from gfm+tex_math_dollars --to html5 --mathml --wrap none --lua-filter "$tools/page.lua" \
        --template "$tools/page.html" --output "$out/$name.html" "$page"
done
cp "$tools/manual.css" "$project/packaging/vorlan.svg" "$out"
# What the pages link to beside pages.
for linked in pictures "$project"/docs/*.toml "$project"/docs/*.sh; do
    ln -s "../docs/$(basename "$linked")" "$out"
done
