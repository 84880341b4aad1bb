#pragma once

#include <gtest/gtest.h>

#include <string>

#include "model/Archive.h"

namespace vorlan::test {

/// The bytes that a value has in an archive.
template <class Stored>
std::string archived(Stored value) {
    Archive archive = Archive::storing();
    value.Serialize(archive);
    return {reinterpret_cast<const char*>(archive.bytes().data()), archive.bytes().size()};
}

/// The value as it comes back from an archive.
template <class Stored>
Stored reloaded(Stored value) {
    Archive out = Archive::storing();
    value.Serialize(out);
    Archive in = Archive::loading(out.bytes());
    Stored back;
    back.Serialize(in);
    EXPECT_EQ(in.remaining(), 0U);
    return back;
}

}  // namespace vorlan::test
