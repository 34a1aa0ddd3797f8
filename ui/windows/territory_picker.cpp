// SPDX-License-Identifier: MIT
#include "ui/windows/territory_picker.h"

#include "ui/parts/screen.h"

namespace vorlund {

void TerritoryPicker::Add(Field& field, const std::function<TerritorySet()>& candidates) {
    connect(&field, &Field::TerritoryFieldFocused, this,
            [this, &field, candidates] { SetTarget(&field, candidates); });
    connect(&field, &Field::textChanged, this, &TerritoryPicker::Changed);
    connect(static_cast<Screen*>(field.window()), &Screen::Closed, this, [this, &field] {
        if (target_ == &field) {
            SetTarget(nullptr, {});
        }
    });
}

TerritorySet TerritoryPicker::Candidates() const {
    return target_.isNull() ? TerritorySet() : candidates_();
}

void TerritoryPicker::SetTarget(Field* field, const std::function<TerritorySet()>& candidates) {
    target_ = field;
    candidates_ = candidates;
    emit Changed();
}

}  // namespace vorlund
