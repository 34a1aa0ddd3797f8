// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <functional>
#include <optional>

#include "state/territory_set.h"
#include "ui/parts/field.h"

namespace vorlund {

/// The territory fields of the open windows, and which of them a click on the map fills in: the one that has,
/// or last had, the focus. In this, Up and Down step through the territories that it could take, and the
/// arrow keys with Alt lead from the territory whose number it holds to a neighbour.
class TerritoryPicker : public QObject {
    Q_OBJECT

public:
    /// Adds a field until its window closes. `candidates` returns the territories that an order could take in
    /// this field, given the other fields of its window.
    void Add(Field& field, const std::function<TerritorySet()>& candidates);

    /// The field that a click on the map fills in; null when no window has one.
    Field* Target() const { return target_.data(); }

    /// The territories that Target could take; none without it.
    TerritorySet Candidates() const;

    /// The index of the territory whose number Target holds.
    std::optional<int> Entered() const;

    /// Makes `text` Target's tooltip and accessible description, which begins with the one that it had when
    /// it was added, and has a screen reader say it when
    /// a territory has been entered.
    void Describe(const QString& text);

signals:
    /// Target, or the text of a field, has changed.
    void Changed();

    /// A key has entered the number of territory index `territory` in Target.
    void Walked(int territory);

private:
    void SetTarget(Field* field, const std::function<TerritorySet()>& candidates);
    void Step(int by);
    void Walk(int arrow);
    void Enter(std::optional<int> territory);

    QPointer<Field> target_;
    std::function<TerritorySet()> candidates_;
    bool typing_ = false;                        ///< the text of a field is just changing
    QHash<const Field*, QString> descriptions_;  ///< the fields' own
};

}  // namespace vorlund
