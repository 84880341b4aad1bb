#include "plot/PdfFile.h"

#include <QList>
#include <algorithm>
#include <map>
#include <optional>

#include "model/Index.h"

namespace vorlan {

namespace {

constexpr char kEndOfObject[] = "\nendobj\n";
constexpr char kEndOfDictionary[] = ">>";

/// Objects by their number, bytes as they stand in the file from "N 0 obj" on.
struct PdfObjects {
    QByteArray head;
    std::map<int, QByteArray> objects;
    std::vector<int> order;  ///< as written
    int info = 0;
    int root = 0;

    void add(int number, const QByteArray& body) {
        objects[number] = QByteArray::number(number) + " 0 obj\n" + body + kEndOfObject;
        order.push_back(number);
    }
};

/// Number of the object that a key refers to ("/Pages 3 0 R"), 0 when there is none.
int referenceOf(const QByteArray& text, const QByteArray& key) {
    const qsizetype at = text.indexOf(key + ' ');
    if (at < 0) {
        return 0;
    }
    return text.mid(at + key.size() + 1).split(' ').value(0).toInt();
}

std::optional<PdfObjects> objectsOf(const QByteArray& file) {
    const qsizetype start = file.lastIndexOf("startxref");
    const qsizetype table = start < 0 ? -1 : file.mid(start).split('\n').value(1).trimmed().toLongLong();
    if (table <= 0 || table >= start || !file.mid(table).startsWith("xref")) {
        return std::nullopt;
    }
    const QList<QByteArray> lines = file.mid(table, start - table).split('\n');
    std::vector<std::pair<qsizetype, int>> places;
    int number = 0;
    for (const QByteArray& line : lines.mid(2)) {
        if (line.size() > 17 && line[17] == 'n') {
            places.emplace_back(line.left(10).toLongLong(), number);
        } else if (line.startsWith("trailer")) {
            break;
        }
        ++number;
    }
    std::sort(places.begin(), places.end());
    if (places.empty()) {
        return std::nullopt;
    }
    PdfObjects result;
    result.head = file.left(places.front().first);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const qsizetype end = i + 1 < places.size() ? places[i + 1].first : table;
        result.objects[places[i].second] = file.mid(places[i].first, end - places[i].first);
        result.order.push_back(places[i].second);
    }
    const QByteArray trailer = file.mid(file.lastIndexOf("trailer", start));
    result.info = referenceOf(trailer, "/Info");
    result.root = referenceOf(trailer, "/Root");
    return result.objects.count(result.info) && result.objects.count(result.root) ? std::optional(result)
                                                                                  : std::nullopt;
}

void removeDate(QByteArray& info) {
    const qsizetype from = info.indexOf("/CreationDate");
    if (from >= 0) {
        info.remove(from, info.indexOf('\n', from) + 1 - from);
    }
}

std::vector<int> pagesOf(const PdfObjects& file) {
    const auto tree = file.objects.find(referenceOf(file.objects.at(file.root), "/Pages"));
    std::vector<int> pages;
    if (tree == file.objects.end()) {
        return pages;
    }
    const qsizetype from = tree->second.indexOf('[') + 1;
    for (const QByteArray& line : tree->second.mid(from, tree->second.indexOf(']', from) - from).split('\n')) {
        if (const int page = line.split(' ').value(0).toInt(); page > 0) {
            pages.push_back(page);
        }
    }
    return pages;
}

/// Letters of any language: UTF-16 behind its mark, as hexadecimal digits.
QByteArray pdfText(const QString& text) {
    QByteArray digits = "FEFF";
    for (const QChar letter : text) {
        digits += QByteArray::number(letter.unicode(), 16).rightJustified(4, '0').toUpper();
    }
    return "<" + digits + ">";
}

QByteArray reference(int number) {
    return QByteArray::number(number) + " 0 R";
}

/// Neighbours of an entry in the outline, indexes of bookmarks; -1 for none.
struct OutlineLinks {
    int parent = -1;
    int previous = -1;
    int next = -1;
    int firstChild = -1;
    int lastChild = -1;
    int below = 0;  ///< entries under it, all levels
};

std::vector<OutlineLinks> linksOf(const std::vector<PdfBookmark>& bookmarks) {
    std::vector<OutlineLinks> links(bookmarks.size());
    std::vector<int> open;  // the entries that the next one may lie under
    int lastOutermost = -1;
    for (int i = 0; i < asInt(bookmarks.size()); ++i) {
        while (!open.empty() && bookmarks[asSize(open.back())].level >= bookmarks[asSize(i)].level) {
            open.pop_back();
        }
        OutlineLinks& own = links[asSize(i)];
        own.parent = open.empty() ? -1 : open.back();
        int& last = open.empty() ? lastOutermost : links[asSize(own.parent)].lastChild;
        own.previous = last;
        if (last >= 0) {
            links[asSize(last)].next = i;
        } else if (own.parent >= 0) {
            links[asSize(own.parent)].firstChild = i;
        }
        last = i;
        open.push_back(i);
    }
    for (auto own = links.rbegin(); own != links.rend(); ++own) {
        if (own->parent >= 0) {
            links[asSize(own->parent)].below += own->below + 1;
        }
    }
    return links;
}

void addOutline(PdfObjects& file, const std::vector<PdfBookmark>& bookmarks) {
    const std::vector<int> pages = pagesOf(file);
    const auto isOnAPage = [&](const PdfBookmark& bookmark) {
        return bookmark.page >= 0 && bookmark.page < asInt(pages.size());
    };
    if (bookmarks.empty() || !std::all_of(bookmarks.begin(), bookmarks.end(), isOnAPage)) {
        return;
    }
    const int outline = file.objects.rbegin()->first + 1;
    const auto numberOf = [outline](int index) { return outline + 1 + index; };
    const std::vector<OutlineLinks> links = linksOf(bookmarks);
    int last = 0;
    for (int i = 0; i < asInt(links.size()); ++i) {
        last = links[asSize(i)].parent < 0 ? i : last;
    }
    file.add(outline, "<<\n/Type /Outlines\n/First " + reference(numberOf(0)) + "\n/Last " + reference(numberOf(last)) +
                          "\n/Count " + QByteArray::number(bookmarks.size()) + "\n>>");
    for (std::size_t i = 0; i < links.size(); ++i) {
        const OutlineLinks& own = links[i];
        QByteArray item = "<<\n/Title " + pdfText(bookmarks[i].text) + "\n/Parent " +
                          reference(own.parent < 0 ? outline : numberOf(own.parent));
        const auto link = [&](const char* key, int index) {
            if (index >= 0) {
                item += QByteArray("\n/") + key + ' ' + reference(numberOf(index));
            }
        };
        link("Prev", own.previous);
        link("Next", own.next);
        link("First", own.firstChild);
        link("Last", own.lastChild);
        if (own.below > 0) {
            item += "\n/Count " + QByteArray::number(own.below);
        }
        item += "\n/Dest [" + reference(pages[asSize(bookmarks[i].page)]) + " /Fit]\n>>";
        file.add(numberOf(asInt(i)), item);
    }
    QByteArray& root = file.objects[file.root];
    root.insert(root.lastIndexOf(kEndOfDictionary),
                "/Outlines " + reference(outline) +
                    "\n/PageMode /UseOutlines\n/ViewerPreferences << /DisplayDocTitle true >>\n");
}

QByteArray bytesOf(const PdfObjects& file) {
    QByteArray bytes = file.head;
    const int size = file.objects.rbegin()->first + 1;
    std::vector<qsizetype> offsets(asSize(size), -1);
    for (const int number : file.order) {
        offsets[asSize(number)] = bytes.size();
        bytes += file.objects.at(number);
    }
    const qsizetype table = bytes.size();
    bytes += "xref\n0 " + QByteArray::number(size) + "\n0000000000 65535 f \n";
    for (std::size_t i = 1; i < offsets.size(); ++i) {
        bytes += offsets[i] < 0 ? QByteArray("0000000000 65535 f \n")
                                : QByteArray::number(offsets[i]).rightJustified(10, '0') + " 00000 n \n";
    }
    bytes += "trailer\n<<\n/Size " + QByteArray::number(size) + "\n/Info " + reference(file.info) + "\n/Root " +
             reference(file.root) + "\n>>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n";
    return bytes;
}

}  // namespace

QByteArray finishedPdf(const QByteArray& written, const std::vector<PdfBookmark>& bookmarks) {
    std::optional<PdfObjects> file = objectsOf(written);
    if (!file) {
        return written;
    }
    removeDate(file->objects[file->info]);
    addOutline(*file, bookmarks);
    return bytesOf(*file);
}

}  // namespace vorlan
