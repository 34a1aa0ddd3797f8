#include "tests/monkey/thoughts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QUrl>
#include <algorithm>
#include <array>

#include "tests/engine/games.h"

namespace vorlund {
namespace {

const std::array<QString, 24> NastyNames{
    "Computer", "comp",      "a,b",     "\"",     "\"q\"",    "q\"q", " lead",      "trail ",
    "..",       "../x",      "a/b",     "CON",    "%1%2%s",   "<b>x", "&amp;&&",    "x\ny",
    "\r",       "\u202Eabc", "\u20AC5", "\u0416", "e\u0301e", "\tx",  "\U0001F680", QString(300, u'M')};

struct KeyOf {
    int Code;
    const char* Text;
    int Modifiers = Qt::NoModifier;
};

constexpr std::array<KeyOf, 29> Keys{{{Qt::Key_B, "b"},
                                      {Qt::Key_S, "s"},
                                      {Qt::Key_R, "r"},
                                      {Qt::Key_A, "a"},
                                      {Qt::Key_U, "u"},
                                      {Qt::Key_T, "T", Qt::ShiftModifier},
                                      {Qt::Key_E, "e"},
                                      {Qt::Key_E, "e"},
                                      {Qt::Key_V, "v"},
                                      {Qt::Key_Return, "\r"},
                                      {Qt::Key_Enter, "\r", Qt::KeypadModifier},
                                      {Qt::Key_Escape, "\x1b"},
                                      {Qt::Key_Tab, "\t"},
                                      {Qt::Key_Backtab, "", Qt::ShiftModifier},
                                      {Qt::Key_Space, " "},
                                      {Qt::Key_Delete, ""},
                                      {Qt::Key_Backspace, "\b"},
                                      {Qt::Key_Up, ""},
                                      {Qt::Key_Down, ""},
                                      {Qt::Key_PageDown, ""},
                                      {Qt::Key_Home, ""},
                                      {Qt::Key_F4, "", Qt::AltModifier},
                                      {Qt::Key_1, "1", Qt::AltModifier},
                                      {Qt::Key_3, "3", Qt::AltModifier},
                                      {Qt::Key_Z, "", Qt::ControlModifier},
                                      {Qt::Key_V, "", Qt::ControlModifier},
                                      {Qt::Key_Menu, ""},
                                      {Qt::Key_F1, ""},
                                      {Qt::Key_unknown, "\u00DF"}}};

constexpr std::array Buttons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                             Qt::MiddleButton};

QString Line(const char* kind, const QWidget& window, const QString& rest = {}) {
    return QStringLiteral("%1 %2 %3").arg(QString::fromLatin1(kind), NameOf(window), rest);
}

template <class Widget>
QList<Widget*> Shown(const QWidget& window) {
    QList<Widget*> shown = window.findChildren<Widget*>();
    // The dialogs that a window owns are its children too.
    shown.removeIf([&](const Widget* widget) { return !widget->isVisible() || widget->window() != &window; });
    return shown;
}

/// Closing it, or saying yes to that, ends the run.
bool HoldsTheRun(const QWidget& window) {
    return window.objectName() != QLatin1String("frmLoad") && window.parentWidget() == nullptr &&
           window.objectName() != QLatin1String("frmReport");
}

}  // namespace

QString NameOf(const QWidget& window) {
    return window.objectName().isEmpty() ? QString::fromLatin1(window.metaObject()->className())
                                         : window.objectName();
}

QList<QWidget*> WindowsOnScreen() {
    QList<QWidget*> windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) {
        return !window->isVisible() || window->windowType() == Qt::ToolTip ||
               window->windowHandle() == nullptr;
    });
    // By name, for the toolkit keeps them in no order that would come again.
    std::sort(windows.begin(), windows.end(),
              [](const QWidget* a, const QWidget* b) { return NameOf(*a) < NameOf(*b); });
    return windows;
}

QString Thoughts::Next(const GameState& game) {
    while (!plan_.isEmpty()) {
        const QString line = plan_.takeFirst();
        const QWidget* modal = QApplication::activeModalWidget();
        const QString window = line.section(u' ', 1, 1);
        for (const QWidget* shown : WindowsOnScreen()) {
            if (NameOf(*shown) == window && (modal == nullptr || modal == shown)) {
                return line;
            }
        }
        plan_.clear();
    }
    const QWidget* window = PickWindow();
    return window == nullptr ? QString() : OfWindow(*window, game);
}

QWidget* Thoughts::PickWindow() {
    QWidget* const foremost = QApplication::activePopupWidget() != nullptr
                                  ? QApplication::activePopupWidget()
                                  : QApplication::activeModalWidget();
    if (foremost != nullptr && !OneIn(10)) {
        return foremost;
    }
    QList<QWidget*> windows = WindowsOnScreen();
    if (windows.size() > 1 && !OneIn(3)) {
        windows.removeIf([](const QWidget* window) { return window->objectName() == QLatin1String("frm3"); });
    }
    return windows.isEmpty() ? nullptr : Any(windows);
}

QString Thoughts::OfWindow(const QWidget& window, const GameState& game) {
    const bool careful = HoldsTheRun(window) && !game.GameOver;
    const int kind = mind_.Draw(100);
    if (kind < 4) {
        return careful && !OneIn(10) ? Line("activate", window) : Line("close", window);
    }
    if (kind < 10) {
        return AtPoint(window);
    }
    if (kind < 35) {
        return Key(window);
    }
    if (kind < 60 && !Shown<QLineEdit>(window).isEmpty()) {
        PlanToFill(window, game);
        return plan_.takeFirst();
    }
    const QList<QAbstractButton*> buttons = Shown<QAbstractButton>(window);
    if (buttons.isEmpty()) {
        return AtPoint(window);
    }
    const QAbstractButton* button = Any(buttons);
    if (button->objectName() == QLatin1String("lblExit") && !OneIn(10)) {
        return Line("activate", window);
    }
    return AtWidget(OneIn(12) ? "double" : OneIn(6) ? "hover" : "click", window, *button);
}

QString Thoughts::AtPoint(const QWidget& window) {
    const QRect whole = window.rect();
    return Line(OneIn(3) ? "double" : "click", window,
                QStringLiteral("%1 %2 %3")
                    .arg(mind_.Draw(whole.width()))
                    .arg(mind_.Draw(OneIn(2) ? whole.height() : 100))
                    .arg(Any(Buttons)));
}

QString Thoughts::AtWidget(const char* kind, const QWidget& window, const QWidget& target) {
    const QPoint place =
        target.mapTo(&window, QPoint(mind_.Draw(target.width()), mind_.Draw(target.height())));
    return Line(kind, window,
                QStringLiteral("%1 %2 %3")
                    .arg(place.x())
                    .arg(place.y())
                    .arg(OneIn(10) ? Any(Buttons) : Qt::LeftButton));
}

QString Thoughts::Key(const QWidget& window) {
    const KeyOf key = Any(Keys);
    return Line("key", window,
                QStringLiteral("%1 %2 %3")
                    .arg(key.Code)
                    .arg(key.Modifiers)
                    .arg(QString::fromLatin1(QUrl::toPercentEncoding(QString::fromUtf8(key.Text)))));
}

void Thoughts::PlanToFill(const QWidget& window, const GameState& game) {
    route_ = RandomRoute(game, mind_);
    for (const QLineEdit* field : Shown<QLineEdit>(window)) {
        if (!OneIn(8)) {
            plan_ << AtWidget("click", window, *field);
            plan_ << Line(OneIn(8) ? "paste" : "type", window, Entry(field->objectName(), game));
        }
    }
    plan_ << Line("key", window, QString::number(Qt::Key_Return) + QStringLiteral(" 0 %0D"));
}

QString Thoughts::Entry(const QString& field, const GameState& game) {
    QString text;
    if (field == QLatin1String("txtSave") || field.startsWith(QLatin1String("txtN("))) {
        text = OneIn(4) ? Any(NastyNames) : QString::fromStdString(RandomNames(mind_).front());
    } else if (field == QLatin1String("txtTroops") || field == QLatin1String("txtTanks")) {
        text = QString::fromStdString(
            QuantityEntry(field == QLatin1String("txtTroops") ? route_.Troops : route_.Tanks, mind_));
    } else if (field == QLatin1String("txtOil")) {
        text = QString::fromStdString(QuantityEntry(30, mind_));
    } else if (OneIn(4)) {
        text = QString::fromStdString(TerritoryEntry(game, mind_));
    } else {
        text = QString::fromStdString(field == QLatin1String("txtC1") ? route_.From : route_.To);
    }
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

}  // namespace vorlund
