// SPDX-License-Identifier: MIT
#include "ui/windows/map_lines.h"

#include <QFile>
#include <charconv>

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

/// Reads whole numbers separated by blanks and line ends.
class NumberReader {
public:
    explicit NumberReader(const QByteArray& text) : next_(text.begin()), end_(text.end()) {}

    /// The next number; 0 at the end and after anything else than a number.
    int Next() {
        while (next_ != end_ && (*next_ == ' ' || *next_ == '\n')) {
            ++next_;
        }
        int number = 0;
        const auto [rest, fault] = std::from_chars(next_, end_, number);
        next_ = fault == std::errc() ? rest : end_;
        return number;
    }

private:
    const char* next_;
    const char* end_;
};

}  // namespace

std::vector<MapLine> ReadMapLines(const QString& name, int territories) {
    std::vector<MapLine> lines;
    QFile file(u":/map/"_s + name);
    if (!file.open(QIODevice::ReadOnly)) {
        return lines;
    }
    const QByteArray text = file.readAll();
    NumberReader numbers(text);
    while (true) {
        MapLine line;
        for (int i = 0; i < territories; ++i) {
            line.Territories.push_back(numbers.Next());
        }
        const int points = numbers.Next();
        if (points <= 0) {
            return lines;
        }
        line.Points.reserve(points);
        for (int i = 0; i < points; ++i) {
            const double x = numbers.Next() / 10.0;
            line.Points << QPointF(x, numbers.Next() / 10.0);
        }
        lines.push_back(std::move(line));
    }
}

}  // namespace vorlund
