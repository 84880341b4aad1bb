#pragma once

#include <string>
#include <string_view>

#include "io/FileError.h"
#include "model/SBndSet.h"

namespace vorlan {

/// The boundary's text file cannot be opened; what() is "Cannot find data file: <path>". Opening may be tried again.
class BoundaryOpenError : public FileError {
  public:
    explicit BoundaryOpenError(const std::string& path);
};

/// A line without three numbers; what() is "Format of the file <path> is invalid !".
class BoundaryFormatError : public FileError {
  public:
    explicit BoundaryFormatError(const std::string& path);
};

/// Reads the nodes of boundary.path: three single-precision numbers per node, separated by any white space, line ends
/// included. Node i goes into entry i; entries beyond the last node read keep their values. An empty file holds no
/// nodes. BoundaryOpenError, also for what is no regular file, and FileError when the disk fails change nothing; after
/// BoundaryFormatError the nodes before the bad line stay.
void readBoundary(SBndFile& boundary);

/// The same from a text that stands for the file at boundary.path.
void readBoundary(SBndFile& boundary, std::string_view text);

/// The nodes as such a file holds them, one line "%f %f %f\n" each.
std::string boundaryText(const SBndFile& boundary);

/// Writes the nodes to boundary.path. BoundaryOpenError when the file cannot be written;
/// FileError when the disk fails on the way; the old file stays in both cases.
void writeBoundary(const SBndFile& boundary);
/// The same for a text that was made before.
void writeBoundary(const std::string& path, std::string_view text);

}  // namespace vorlan
