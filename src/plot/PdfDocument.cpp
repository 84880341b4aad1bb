#include "plot/PdfDocument.h"

#include <QHashSeed>
#include <QPageSize>
#include <algorithm>

#include "model/Index.h"

namespace vorlan {

namespace {
constexpr double kMmPerCm = 10.0;
}

PdfDocument::PdfDocument(const std::string& title, const PaperSize& paper) : buffer_(&bytes_) {
    // The platform embeds its fonts in the order of a hash table.
    QHashSeed::setDeterministicGlobalSeed();
    buffer_.open(QIODevice::WriteOnly);
    writer_ = std::make_unique<QPdfWriter>(&buffer_);
    writer_->setTitle(QString::fromStdString(title));
    writer_->setCreator(QStringLiteral("Vorlan"));
    writer_->setResolution(static_cast<int>(kPageDpi));
    writer_->setPageMargins(QMarginsF());
    const QSizeF size = QSizeF(paper.width, paper.height) * kMmPerCm;
    const bool turned = size.width() > size.height();
    writer_->setPageSize(QPageSize(turned ? size.transposed() : size, QPageSize::Millimeter));
    writer_->setPageOrientation(turned ? QPageLayout::Landscape : QPageLayout::Portrait);
}

PdfDocument::~PdfDocument() {
    finish();
}

void PdfDocument::add(const PageContent& page, const std::vector<OutlineEntry>& place) {
    if (pages_ == 0) {
        painter_.begin(writer_.get());
    } else {
        writer_->newPage();
    }
    paintPage(painter_, page, kPageDpi);
    const auto differs = std::mismatch(place.begin(), place.end(), lastPlace_.begin(), lastPlace_.end()).first;
    for (auto part = differs; part != place.end(); ++part) {
        bookmarks_.push_back({QString::fromStdString(part->text), asInt(part - place.begin()), pages_});
    }
    lastPlace_ = place;
    ++pages_;
}

QByteArray PdfDocument::finish() {
    if (writer_ != nullptr) {
        painter_.end();
        writer_.reset();
        QHashSeed::resetRandomGlobalSeed();
        bytes_ = pages_ > 0 ? finishedPdf(bytes_, bookmarks_) : QByteArray();
    }
    return bytes_;
}

}  // namespace vorlan
