// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>

namespace vorlund {

/// One for the application, on which it installs itself: F1 opens the help from every window. While a message
/// box waits, which would keep the help from being read, it does nothing.
class HelpKey final : public QObject {
    Q_OBJECT

public:
    explicit HelpKey(std::function<void()> open);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> open_;
};

}  // namespace vorlund
