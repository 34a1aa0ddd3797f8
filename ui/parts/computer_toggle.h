#pragma once

#include <QAbstractButton>
#include <QString>

namespace vorlund {

/// The small picture button beside a name: on, the computer plays that row.
class ComputerToggle : public QAbstractButton {
    Q_OBJECT

public:
    ComputerToggle(QWidget* parent, const QString& objectName, const QRect& frame);

    QSize sizeHint() const override { return size(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

}  // namespace vorlund
