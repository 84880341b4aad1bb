#pragma once

namespace vorlan {

/// Keeps freed memory, up to some hundreds of megabytes, for the next columns instead of giving its pages back: asking
/// the system for fresh ones costs as long as the work that is done with them. For the start of a program.
void keepFreedMemory();

}  // namespace vorlan
