// SPDX-License-Identifier: MIT
#include "ui/windows/territory_picker.h"

#include <QApplication>

#include "state/typed_number.h"
#include "ui/parts/announcement.h"
#include "ui/parts/screen.h"
#include "ui/windows/map_walk.h"

namespace vorlund {

using namespace Qt::StringLiterals;

void TerritoryPicker::Add(Field& field, const std::function<TerritorySet()>& candidates) {
    connect(&field, &Field::TerritoryFieldFocused, this,
            [this, &field, candidates] { SetTarget(&field, candidates); });
    connect(&field, &Field::textChanged, this, [this] {
        typing_ = true;
        emit Changed();
        typing_ = false;
    });
    connect(&field, &Field::TerritoryStepped, this, &TerritoryPicker::Step);
    connect(&field, &Field::TerritoryWalked, this, &TerritoryPicker::Walk);
    descriptions_[&field] = field.accessibleDescription();
    connect(static_cast<Screen*>(field.window()), &Screen::Closed, this, [this, &field] {
        descriptions_.remove(&field);
        if (target_ == &field) {
            SetTarget(nullptr, {});
        }
    });
}

TerritorySet TerritoryPicker::Candidates() const {
    return target_.isNull() ? TerritorySet() : candidates_();
}

std::optional<int> TerritoryPicker::Entered() const {
    return target_.isNull() ? std::nullopt : ReadTerritory(target_->Typed(), TerritoryRounding::IndexInRange);
}

void TerritoryPicker::Describe(const QString& text) {
    const QString own = descriptions_.value(target_);
    const QString whole = own.isEmpty() ? text : own + u". "_s + text;
    if (target_->accessibleDescription() != whole) {
        target_->setAccessibleDescription(whole);
        // Escaped: a player may have typed markup as a name.
        target_->setToolTip(u"<p>%1</p>"_s.arg(text.toHtmlEscaped()));
        if (typing_ && Entered()) {
            Announce(*target_, text);
        }
    }
}

void TerritoryPicker::Step(int by) {
    const TerritorySet candidates = Candidates();
    int t = Entered().value_or(by > 0 ? NumTerritories - 1 : 0);
    for (int steps = 0; steps < NumTerritories; ++steps) {
        t = (t + by + NumTerritories) % NumTerritories;
        if (Has(candidates, t)) {
            Enter(t);
            return;
        }
    }
    Enter(std::nullopt);
}

void TerritoryPicker::Walk(int arrow) {
    const auto from = Entered();
    Enter(from ? NeighbourTowards(*from, arrow) : std::nullopt);
}

void TerritoryPicker::Enter(std::optional<int> territory) {
    if (territory) {
        target_->ShowNumber(*territory + 1);
        emit Walked(*territory);
    } else {
        QApplication::beep();
    }
}

void TerritoryPicker::SetTarget(Field* field, const std::function<TerritorySet()>& candidates) {
    target_ = field;
    candidates_ = candidates;
    emit Changed();
}

}  // namespace vorlund
