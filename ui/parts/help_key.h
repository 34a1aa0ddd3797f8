// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>

namespace vorlund {

/// An event filter on the application that opens the help on F1 in every window, except while a message box
/// is open, whose modality would block the help window. The application has one.
class HelpKey final : public QObject {
    Q_OBJECT

public:
    explicit HelpKey(std::function<void()> open);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> open_;
};

}  // namespace vorlund
