// SPDX-License-Identifier: MIT
#include "ui/windows/territory_text.h"

#include <QStringList>

#include "ui/parts/look.h"

namespace vorlund {
namespace {

constexpr int NeighboursPerLine = 3;

QString NumberAndName(const GameState& game, int t) {
    return QStringLiteral("%1 %2").arg(t + 1).arg(Displayed(game.TerritoryAt(t).Name));
}

QString Counted(int number, const QString& one, const QString& many) {
    return QStringLiteral("%1 %2").arg(number).arg(number == 1 ? one : many);
}

QStringList Holdings(const GameState& game, const Territory& territory) {
    if (!territory.Occupied) {
        return {QStringLiteral("held by nobody")};
    }
    QStringList holdings{
        QStringLiteral("%1 (Player %2)")
            .arg(Displayed(game.PlayerAt(territory.Owner).Name))
            .arg(territory.Owner + 1),
        Counted(territory.Stationed.Troops, QStringLiteral("troop"), QStringLiteral("troops")),
        Counted(territory.Stationed.Tanks, QStringLiteral("tank"), QStringLiteral("tanks"))};
    if (territory.HasFactory) {
        holdings << QStringLiteral("factory");
    }
    if (territory.HasDefense) {
        holdings << QStringLiteral("defense");
    }
    return holdings;
}

}  // namespace

QString ShortDescription(const GameState& game, int t) {
    return NumberAndName(game, t) + QStringLiteral(": ") +
           Holdings(game, game.TerritoryAt(t)).join(QStringLiteral(", "));
}

QString FullDescription(const GameState& game, int t) {
    const Territory& territory = game.TerritoryAt(t);
    QString neighbours;
    int told = 0;
    for (const std::int16_t n : territory.Neighbours) {
        if (n != NoNeighbour) {
            const auto* between = told == 0 ? "" : told % NeighboursPerLine == 0 ? ",\n" : ", ";
            neighbours += QLatin1String(between) + NumberAndName(game, n);
            ++told;
        }
    }
    return NumberAndName(game, t) + u'\n' + Holdings(game, territory).join(QStringLiteral(", ")) +
           QStringLiteral("\nValue %1").arg(territory.Value) +
           (territory.HasOil ? QStringLiteral(", oil field") : QString()) + QStringLiteral("\nNeighbours: ") +
           neighbours;
}

}  // namespace vorlund
