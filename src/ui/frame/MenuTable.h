#pragma once

#include <vector>

#include "app/CommandState.h"

namespace vorlan {

/// One line of a menu. A line without a command is a separator.
struct MenuItem {
    const char* text = nullptr;  ///< with mnemonic
    Command command = Command::About;
    const char* key = "";      ///< portable key sequence
    const char* prompt = "";   ///< status bar text while the item is highlighted
    const char* toolTip = "";  ///< empty: the text without mnemonic
    bool checkable = false;
    const char* submenu = nullptr;  ///< set: the item stands in this submenu
};

struct Menu {
    const char* title;
    std::vector<MenuItem> items;
};

/// The menu bar, left to right, top to bottom.
const std::vector<Menu>& menuTable();

/// Commands of the spectral analysis toolbar, in order.
const std::vector<Command>& spectralToolbarCommands();

}  // namespace vorlan
