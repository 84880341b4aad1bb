#pragma once

#include <QString>

namespace vorlan {

/// Registers the type of workspace files and its "open" verb for the user, the freedesktop way: a MIME type for
/// "*.avp" and a desktop entry below dataHome. Files are written only when they are missing or differ; a failure is
/// no matter of the user's. Returns true when something was written.
bool registerDocumentType(const QString& program, const QString& dataHome);

/// Lets the desktop read anew what is registered below dataHome, in the background.
void refreshDesktopDatabases(const QString& dataHome);

}  // namespace vorlan
