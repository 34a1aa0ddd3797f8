// SPDX-License-Identifier: MIT
#include "savegame/format.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <vector>

#include "savegame/layout.h"
#include "savegame/windows1252.h"
#include "state/consistent.h"
#include "state/text.h"
#include "state/typed_number.h"

namespace vorlund {
namespace {

bool NeedsQuotes(std::string_view bytes) {
    return bytes.starts_with(' ') || bytes.find(',') != std::string_view::npos;
}

struct Writer {
    std::string Bytes;

    bool Line(const std::string& value) {
        Bytes += value + "\r\n";
        return true;
    }
    bool Integer(std::int16_t value, const char*, const std::string&, std::int16_t, std::int16_t) {
        return Line((value < 0 ? "" : " ") + std::to_string(value) + " ");
    }
    bool Boolean(bool value, const char*, const std::string&) { return Line(value ? "True" : "False"); }
    bool Name(const std::string& value, const char*, const std::string&) {
        const std::string bytes = ToWindows1252(value).value_or("?");
        return Line(NeedsQuotes(bytes) ? '"' + bytes + '"' : bytes);
    }
};

std::vector<std::string_view> SplitIntoLines(std::string_view bytes) {
    std::vector<std::string_view> lines;
    while (!bytes.empty()) {
        const auto end = bytes.find('\n');
        std::string_view line = bytes.substr(0, end);
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.push_back(line);
    }
    return lines;
}

std::optional<int> ReadInteger(std::string_view line) {
    line = Trimmed(line);
    if (line.find_first_not_of("0123456789+-") != std::string_view::npos) {
        return std::nullopt;  // bytes above 127 make libstdc++'s from_chars convert with a change of sign
    }
    if (line.starts_with('+') && !line.starts_with("+-")) {
        line.remove_prefix(1);
    }
    int value = 0;
    const char* const end = line.data() + line.size();
    const auto [stop, error] = std::from_chars(line.data(), end, value);
    if (error != std::errc{} || stop != end) {
        return std::nullopt;
    }
    return value;
}

/// "True" or "False" in any mix of case, or a number, of which only 0 is false.
std::optional<bool> ReadBoolean(std::string_view line) {
    const std::string word = LowerCase(Trimmed(line));
    if (word == "true" || word == "false") {
        return word == "true";
    }
    const auto number = ReadNumber(word);
    return number ? std::optional<bool>(*number != 0) : std::nullopt;
}

/// The text after leading spaces: between double quotes if it starts with one, otherwise up to a comma.
/// Nothing when the closing quote is missing.
std::optional<std::string> ReadText(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    if (!line.starts_with('"')) {
        return FromWindows1252(line.substr(0, line.find(',')));
    }
    line.remove_prefix(1);
    const auto end = line.find('"');
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    return FromWindows1252(line.substr(0, end));
}

/// The visitor that reads a line for each value and stops at the first bad one.
class Reader {
public:
    explicit Reader(std::string_view bytes) : lines_(SplitIntoLines(bytes.substr(0, MaxSavedGameBytes))) {}

    bool Integer(std::int16_t& value, const char* name, const std::string& whose, std::int16_t low,
                 std::int16_t high) {
        const auto number = ReadInteger(Line());
        if (!number || *number < low || *number > high) {
            return Fail(name, whose, RangeWords(low, high));
        }
        value = static_cast<std::int16_t>(*number);
        return Next();
    }

    bool Boolean(bool& value, const char* name, const std::string& whose) {
        const auto truth = ReadBoolean(Line());
        value = truth.value_or(false);
        return truth ? Next() : Fail(name, whose, "True or False");
    }

    bool Name(std::string& value, const char* name, const std::string& whose) {
        const auto text = ReadText(Line());
        if (!text) {
            return Fail(name, whose, "closed by a double quote, as it starts with one");
        }
        value = *text;
        return NameReadsBack(value) ? Next() : Fail(name, whose, "1 to 12 characters that can be shown");
    }

    const BadFile& Bad() const { return bad_; }

private:
    std::string_view Line() const { return next_ < lines_.size() ? lines_[next_] : std::string_view(); }

    bool Next() {
        ++next_;
        return true;
    }

    bool Fail(const char* name, const std::string& whose, const std::string& expected) {
        const std::string value = name + (" of " + whose);
        bad_.Line = static_cast<int>(next_) + 1;
        bad_.What = next_ < lines_.size() ? value + " must be " + expected + "."
                                          : "The file ends before " + value + ".";
        return false;
    }

    std::vector<std::string_view> lines_;
    std::size_t next_ = 0;
    BadFile bad_;
};

/// The visitor that finds the line of a field of the game.
struct LineCounter {
    const void* Field = nullptr;
    int Line = 1;

    bool Integer(const std::int16_t& value, const char*, const std::string&, std::int16_t, std::int16_t) {
        return Skip(&value);
    }
    bool Boolean(const bool& value, const char*, const std::string&) { return Skip(&value); }
    bool Name(const std::string& value, const char*, const std::string&) { return Skip(&value); }

    bool Skip(const void* field) {
        const bool found = field == Field;
        Line += found ? 0 : 1;
        return !found;
    }
};

}  // namespace

std::string WriteGame(const GameState& game) {
    Writer writer;
    VisitGame(game, writer);
    return writer.Bytes;
}

std::variant<GameState, BadFile> ReadGame(const GameState& fresh, std::string_view bytes) {
    GameState game = fresh;
    Reader reader(bytes);
    if (!VisitGame(game, reader)) {
        return reader.Bad();
    }
    if (const auto flaw = FirstFlaw(game, AtTurn::LivingHuman)) {
        LineCounter counter{flaw->Field};
        VisitGame(game, counter);
        return BadFile{counter.Line, flaw->What};
    }
    game.GameLoaded = true;
    return game;
}

bool NameReadsBack(std::string_view utf8Name) {
    const auto bytes = ToWindows1252(utf8Name);
    if (!bytes || bytes->empty() || bytes->size() > MaxNameLength ||
        std::any_of(bytes->begin(), bytes->end(),
                    [](char c) { return IsAsciiControl(static_cast<unsigned char>(c)); })) {
        return false;
    }
    return NeedsQuotes(*bytes) ? bytes->find('"') == std::string::npos : !bytes->starts_with('"');
}

}  // namespace vorlund
