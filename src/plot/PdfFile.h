#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace vorlan {

/// An entry of a document's outline. Levels count from 0; an entry lies under the nearest one before it whose level is
/// smaller. Pages count from 0.
struct PdfBookmark {
    QString text;
    int level = 0;
    int page = 0;
};

/// The file that the platform's writer made, without its creation date and with an outline, which viewers then open.
/// Bytes that are no such file come back as they are.
QByteArray finishedPdf(const QByteArray& written, const std::vector<PdfBookmark>& bookmarks);

}  // namespace vorlan
