// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

#include "state/territory_set.h"
#include "ui/parts/field.h"

namespace vorlund {

/// The territory fields of the open windows, and which of them a click on the map fills in: the one that has,
/// or last had, the focus.
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

signals:
    /// Target, or the text of a field, has changed.
    void Changed();

private:
    void SetTarget(Field* field, const std::function<TerritorySet()>& candidates);

    QPointer<Field> target_;
    std::function<TerritorySet()> candidates_;
};

}  // namespace vorlund
