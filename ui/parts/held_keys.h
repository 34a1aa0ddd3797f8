#pragma once

#include <QObject>

namespace vorlund {

/// Installed on the application: a key held down does not press Enter or Escape again, so that no report and
/// no message box is gone before it could be read.
class HeldKeys : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace vorlund
