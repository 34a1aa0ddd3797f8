#pragma once

#include <string>

#include "actions/outcome.h"
#include "actions/sell.h"
#include "actions/transport.h"
#include "actions/upgrade.h"

namespace vorlund {

/// What an order has led to, in one text: what the player is told, or a word in brackets.
struct Said {
    std::string operator()(const Refusal& refusal) const { return refusal.Message; }
    std::string operator()(const Report& report) const {
        return report.Title + "|" + report.Headline + "|" + report.Body;
    }
    std::string operator()(const Moved& moved) const { return moved.StatusLine; }
    std::string operator()(const Purchase& purchase) const { return purchase.Message; }
    std::string operator()(const Beep&) const { return "(beep)"; }
    std::string operator()(const Nothing&) const { return "(nothing)"; }
    std::string operator()(const NoSurvivor&) const { return "(nobody is left)"; }
};

}  // namespace vorlund
