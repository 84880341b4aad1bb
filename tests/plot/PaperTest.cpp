// Printed pages and the files that hold them.
#include <QRegularExpression>
#include <QTest>

#include "model/Text.h"
#include "plot/PdfDocument.h"

using namespace vorlan;

namespace {

constexpr PaperSize kA5{14.8, 21.0};

PageContent pageOf(const PageAtrType& attributes, const PaperSize& paper = kA5) {
    PageContent page;
    page.layout = layoutPage(attributes, paper, kPageDpi);
    page.header = attributes.header;
    page.footer = attributes.footer;
    for (const PageLayout::PlacedPane& placed : page.layout.panes) {
        page.panes.emplace_back(PaneMessage{formatted("pane %d", static_cast<int>(placed.pane))});
    }
    return page;
}

QImage painted(const PageContent& page, double dpi) {
    QImage image(static_cast<int>(page.layout.paper.width / 2.54 * dpi),
                 static_cast<int>(page.layout.paper.height / 2.54 * dpi), QImage::Format_RGB32);
    image.fill(Qt::yellow);
    QPainter painter(&image);
    paintPage(painter, page, dpi);
    return image;
}

/// The rows, in per mille of the height, where something other than the paper's yellow begins or ends.
std::vector<int> edgesDown(const QImage& image, int x) {
    std::vector<int> edges;
    for (int y = 1; y < image.height(); ++y) {
        const auto isPaper = [&](int row) { return image.pixelColor(x, row) == Qt::yellow; };
        if (isPaper(y) != isPaper(y - 1)) {
            edges.push_back(static_cast<int>(std::lround(1000.0 * y / image.height())));
        }
    }
    return edges;
}

QByteArray documentOf(const std::vector<std::vector<OutlineEntry>>& places, const QString& header = QString()) {
    PdfDocument document("K\u00f6ln", kA5);
    PageAtrType attributes;
    attributes.header = header.toStdString();
    for (const auto& place : places) {
        document.add(pageOf(attributes), place);
    }
    return document.finish();
}

}  // namespace

class PaperTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void panesStandWhereTheLayoutSaysAtAnyResolution() {
        PageAtrType attributes;
        attributes.footer.clear();
        attributes.leftTop.width = attributes.leftBottom.width = 10.0;
        attributes.printRightBottom = 0;
        attributes.layout = 1;
        attributes.rightTop = {3.0, 10.0};
        const PageContent page = pageOf(attributes);
        for (const double dpi : {100.0, 150.0, 300.0}) {
            // 2.5, 7.5, 8.5, 13.5, 14.5, 17.5 of 21 cm.
            const std::vector expected{119, 357, 405, 643, 690, 833};
            const std::vector<int> edges = edgesDown(painted(page, dpi), static_cast<int>(3.0 / 2.54 * dpi));
            QCOMPARE(edges.size(), expected.size());
            for (std::size_t i = 0; i < edges.size(); ++i) {
                QVERIFY(std::abs(edges[i] - expected[i]) <= 1);
            }
        }
    }

    void headersOfAnyLengthStayInTheirMargin() {
        PageAtrType attributes;
        attributes.footer.clear();
        attributes.topMargin = 1.0;
        const QImage without = painted(pageOf(attributes), 150.0);
        for (const int words : {1, 30, 400}) {
            attributes.header = QStringLiteral("header ").repeated(words).toStdString();
            QImage difference = painted(pageOf(attributes), 150.0);
            QRect inked;
            for (int y = 0; y < difference.height(); ++y) {
                for (int x = 0; x < difference.width(); ++x) {
                    if (difference.pixel(x, y) != without.pixel(x, y)) {
                        inked |= QRect(x, y, 1, 1);
                    }
                }
            }
            const double dots = 150.0 / 2.54;
            QVERIFY(!inked.isEmpty());
            QVERIFY2(QRectF(2.5 * dots, 0, 10.8 * dots, 1.0 * dots).contains(inked),
                     qPrintable(QString::number(words)));
            QVERIFY(std::abs(inked.center().x() - (2.5 + 5.4) * dots) < 5);
        }
    }

    void documentsHoldNoDateAndTheSameBytes() {
        const QByteArray bytes = documentOf({{{0, "a"}}, {{0, "a"}}});
        QVERIFY(bytes.startsWith("%PDF"));
        QVERIFY(!bytes.contains("Date") && !bytes.contains("/ID"));
        QCOMPARE(documentOf({{{0, "a"}}, {{0, "a"}}}), bytes);
        QVERIFY(documentOf({{{0, "a"}}, {{0, "a"}}}, QStringLiteral("x")) != bytes);
        QVERIFY(documentOf({}).isEmpty());
    }

    void objectsStandWhereTheTableSays() {
        const QByteArray bytes = documentOf({{{0, "file"}, {0, "Probe 1"}, {0, "Stage"}}});
        const qsizetype table = bytes.mid(bytes.lastIndexOf("startxref")).split('\n')[1].toLongLong();
        QVERIFY(bytes.mid(table).startsWith("xref\n0 "));
        const QList<QByteArray> lines = bytes.mid(table).split('\n');
        const int count = lines[1].split(' ')[1].toInt();
        for (int number = 1; number < count; ++number) {
            QVERIFY(
                bytes.mid(lines[number + 2].left(10).toLongLong()).startsWith(QByteArray::number(number) + " 0 obj"));
        }
    }

    void outlineFollowsFileProbeAndStage() {
        // Two probes of one number in one file are two entries.
        const QByteArray bytes = documentOf({{{0, "a"}, {0, "P"}, {0, "S"}},
                                             {{0, "a"}, {0, "P"}, {3, "\u03a3"}},
                                             {{0, "a"}, {1, "P"}, {0, "S"}},
                                             {{1, "a"}, {0, "P"}, {0, "S"}}});
        QStringList levels;
        QRegularExpression item(QStringLiteral(
            "(\\d+) 0 obj\\n<<\\n/Title <FEFF([0-9A-F]+)>\\n/Parent (\\d+) 0 R(?:\\n/(?:Prev|Next|First|Last) \\d+ 0 "
            "R)*(?:\\n/Count (\\d+))?\\n/Dest \\[(\\d+) 0 R /Fit\\]"));
        QHash<QString, int> depth;
        for (const auto& match : item.globalMatch(QString::fromLatin1(bytes))) {
            depth[match.captured(1)] = depth.value(match.captured(3)) + 1;
            levels += QString::number(depth[match.captured(1)]) + match.captured(2).right(4) + match.captured(4);
        }
        QCOMPARE(levels.join(QLatin1Char(' ')),
                 QStringLiteral("100615 200502 30053 303A3 200501 30053 100612 200501 30053"));
        QVERIFY(bytes.contains("/Count 9\n") && bytes.contains("/PageMode /UseOutlines"));
        QVERIFY(finishedPdf("no document", {}) == "no document");
    }
};

QTEST_MAIN(PaperTest)
#include "PaperTest.moc"
