#pragma once

#include <optional>
#include <string>

#include "state/random.h"
#include "tests/engine/table.h"
#include "turn/commands.h"

namespace vorlund {

/// What a dialog's command came to.
struct Deed {
    std::string What;       ///< the action and its entries, for the record
    std::string Said;       ///< the refusal's message, the report's headline or the status line
    bool Done = false;      ///< false for refusals, beeps and nothing: the game must be as it was
    bool Closes = false;    ///< the dialog closes by itself
    bool IsBattle = false;  ///< the one deed that may draw
};

/// Does something random in the dialog of `dialog` with whatever entries come to mind, and shows the outcome
/// on the table's screens as the dialog would. Not for End Turn.
Deed ActInDialog(Command dialog, Table& table, Random& hands);

}  // namespace vorlund
