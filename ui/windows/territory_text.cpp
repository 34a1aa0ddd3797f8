// SPDX-License-Identifier: MIT
#include "ui/windows/territory_text.h"

#include <QStringList>

#include "turn/upkeep.h"
#include "ui/parts/look.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

constexpr int NeighboursPerLine = 3;

QString NumberAndName(const GameState& game, int t) {
    return u"%1 %2"_s.arg(t + 1).arg(Displayed(game.TerritoryAt(t).Name));
}

QString Counted(int number, const QString& one, const QString& many) {
    return u"%1 %2"_s.arg(number).arg(number == 1 ? one : many);
}

QStringList Holdings(const GameState& game, const Territory& territory) {
    if (!territory.Occupied) {
        return {u"held by nobody"_s};
    }
    QStringList holdings{
        u"%1 (Player %2)"_s.arg(Displayed(game.PlayerAt(territory.Owner).Name)).arg(territory.Owner + 1),
        Counted(territory.Stationed.Troops, u"troop"_s, u"troops"_s),
        Counted(territory.Stationed.Tanks, u"tank"_s, u"tanks"_s)};
    if (territory.HasFactory) {
        holdings << u"factory"_s;
    }
    if (territory.HasDefense) {
        holdings << u"defense"_s;
    }
    return holdings;
}

}  // namespace

QString FullDescription(const GameState& game, int t) {
    const Territory& territory = game.TerritoryAt(t);
    QString neighbours;
    int told = 0;
    for (const std::int16_t n : territory.Neighbours) {
        if (n != NoNeighbour) {
            const QString separator = told == 0 ? u""_s : told % NeighboursPerLine == 0 ? u",\n"_s : u", "_s;
            const Territory& neighbour = game.TerritoryAt(n);
            neighbours += separator + NumberAndName(game, n);
            if (neighbour.Occupied) {
                neighbours += u" (%1)"_s.arg(Displayed(game.PlayerAt(neighbour.Owner).Name));
            }
            ++told;
        }
    }
    return NumberAndName(game, t) + u'\n' + Holdings(game, territory).join(u", "_s) +
           u"\nPays $%1 a turn"_s.arg(TerritoryIncome(territory.Value)) +
           (territory.HasOil ? u", oil field"_s : QString()) + u"\nNeighbours: "_s + neighbours;
}

QString DescriptionInOneLine(const GameState& game, int t) {
    return FullDescription(game, t).replace(u",\n"_s, u", "_s).replace(u'\n', u". "_s);
}

QString DescribeEntry(const GameState& game, std::optional<int> entered, const TerritorySet& candidates) {
    constexpr std::size_t mostListed = 15;
    if (entered) {
        return DescriptionInOneLine(game, *entered) +
               (Has(candidates, *entered) ? QString() : u". Not possible here"_s);
    }
    if (candidates.none()) {
        return u"No territory is possible"_s;
    }
    if (candidates.count() > mostListed) {
        return u"%1 territories are possible"_s.arg(candidates.count());
    }
    QStringList numbers;
    for (int t = 0; t < NumTerritories; ++t) {
        if (Has(candidates, t)) {
            numbers << QString::number(t + 1);
        }
    }
    return u"Possible: "_s + numbers.join(u", "_s);
}

}  // namespace vorlund
