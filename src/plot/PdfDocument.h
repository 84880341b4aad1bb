#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QPainter>
#include <QPdfWriter>
#include <memory>
#include <string>
#include <vector>

#include "plot/PaintPage.h"
#include "plot/PdfFile.h"

namespace vorlan {

/// Printed pages as one PDF: lines and letters, fonts embedded, an outline, no date. The same pages give the same
/// bytes. Needs a QGuiApplication. Texts are UTF-8.
class PdfDocument {
  public:
    PdfDocument(const std::string& title, const PaperSize& paper);
    ~PdfDocument();
    PdfDocument(const PdfDocument&) = delete;
    PdfDocument& operator=(const PdfDocument&) = delete;

    /// Appends a page. place is where it stands in the outline, outermost entry first.
    void add(const PageContent& page, const std::vector<OutlineEntry>& place);
    int pages() const { return pages_; }
    /// The bytes of the file; nothing can be added afterwards. Empty without a page.
    QByteArray finish();

  private:
    QByteArray bytes_;
    QBuffer buffer_;
    std::unique_ptr<QPdfWriter> writer_;
    QPainter painter_;
    int pages_ = 0;
    std::vector<PdfBookmark> bookmarks_;
    std::vector<OutlineEntry> lastPlace_;
};

}  // namespace vorlan
