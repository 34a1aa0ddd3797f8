#include "tests/screens/hands.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "savegame/folder.h"

namespace {

int beeps = 0;

}  // namespace

// Stands in for the toolkit's own, which cannot be heard.
void QApplication::beep() {
    ++beeps;
}

namespace vorlund {
namespace {

constexpr std::array<const char*, NumCommands> CommandNames{
    "lblBuy", "lblSell", "lblTransport", "lblAttack", "lblUpgrade", "lblStatus", "lblEndTurn", "lblSave"};

class Unlucky final : public Random {
public:
    float Uniform() override { return 0; }
    void Reseed() override {}
};

void Fail(const QString& what) {
    QTest::qFail(qPrintable(what), __FILE__, __LINE__);
}

QWidget* VisibleWindow(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

QWindow& Keyboard() {
    QCoreApplication::processEvents();  // lets a window that has just opened get it
    if (!QTest::qWaitFor([] { return QGuiApplication::focusWindow() != nullptr; })) {
        qFatal("no window has the keyboard");
    }
    return *QGuiApplication::focusWindow();
}

QString Description(QMessageBox::Icon icon, const QString& title, const QString& text, int buttons) {
    return QString("icon %1, buttons %2, \"%3\": %4").arg(icon).arg(buttons, 0, 16).arg(title, text);
}

QImage Asset(const QString& name) {
    return QImage(QString(":/pictures/%1.png").arg(name))
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// What is wrong with a picture on the map that should show `asset`, or nothing if that is empty.
QString PictureFault(const QString& name, const QString& asset, QPoint place) {
    const auto* picture = Sitting::Window("frm3").findChild<QWidget*>(name);
    if (picture->isVisible() == asset.isEmpty()) {
        return name + (asset.isEmpty() ? " is seen" : " is not seen");
    }
    if (asset.isEmpty()) {
        return {};
    }
    if (picture->pos() != place || Painted(*const_cast<QWidget*>(picture)) != Asset(asset)) {
        return name + QString(" is not ") + asset + " at its place";
    }
    return {};
}

QString TerritoryFault(const Territory& territory, int t) {
    const bool built = territory.HasFactory || territory.HasDefense;
    const QPoint place(territory.MapX, territory.MapY);
    QString marker;
    QString extra;
    if (territory.Occupied) {
        marker = QString("marker%1").arg(territory.Owner);
        extra = !built                  ? QString()
                : !territory.HasFactory ? "extra0"
                : territory.HasDefense  ? "extra2"
                                        : "extra1";
    }
    const QString count = QString("lblCntry(%1)").arg(t);
    const auto* label = Sitting::Window("frm3").findChild<QLabel*>(count);
    QString fault = PictureFault(QString("imgCntry(%1)").arg(t), marker, place - QPoint(built ? 10 : 5, 0));
    fault += PictureFault(QString("imgExtra(%1)").arg(t), extra, place);
    const QString units = QString("%1/%2").arg(territory.Troops).arg(territory.Tanks);
    const QRect frame(place + QPoint(-28, 12), QSize(56, 17));
    if (label->isVisible() != territory.Occupied) {
        fault += count + " is seen or not";
    } else if (territory.Occupied && (label->text() != units || label->geometry() != frame)) {
        fault += count + " says " + label->text() + ", not " + units;
    }
    return fault;
}

}  // namespace

Script::~Script() {
    if (next_ != values_.size()) {
        Fail(QString("%1 values of chance asked for, %2 in the script").arg(next_).arg(values_.size()));
    }
}

std::unique_ptr<Random> NoLuck() {
    return std::make_unique<Unlucky>();
}

std::unique_ptr<Random> ByScript(std::vector<float> values) {
    return std::make_unique<Script>(std::move(values));
}

QImage Painted(QWidget& widget) {
    const qreal ratio = widget.devicePixelRatioF();
    QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    widget.render(&image, {}, {}, QWidget::RenderFlags());
    image.setDevicePixelRatio(1);
    return image;
}

Sitting::Sitting(std::unique_ptr<Random> chance, const QString& saves)
    : saves_(saves.isEmpty() ? folder_.filePath("saves") : saves),
      program_(std::make_unique<Program>(std::move(chance), SavedGamesFolder(saves_.toStdString()))) {
    QApplication::setQuitOnLastWindowClosed(false);
    qApp->installEventFilter(&heldKeys_);
    qApp->installEventFilter(this);
    beeps = 0;
    program_->Start();
}

Sitting::~Sitting() {
    if (!expected_.empty()) {
        Fail("a message box that never came: " + expected_.front().Text);
    }
}

void Sitting::Put(const QString& file, const GameState& game) const {
    if (const auto error = SavedGamesFolder(saves_.toStdString()).Save(file.toStdString(), game)) {
        Fail(QString::fromStdString(*error));
    }
}

void Sitting::Resume(const GameState& game) {
    Put("start.vrs", game);
    Click("frm1", "lblLoad");
    ClickSaved("start.vrs");
    Click("frmLoad", "lblGo(0)");
    Window("frm3");
}

bool Sitting::IsOpen(const QString& window) {
    QCoreApplication::processEvents();
    return VisibleWindow(window) != nullptr;
}

QWidget& Sitting::Window(const QString& window) {
    if (!QTest::qWaitFor([&window] { return VisibleWindow(window) != nullptr; })) {
        qFatal("the window %s does not open", qPrintable(window));
    }
    return *VisibleWindow(window);
}

QWidget& Sitting::Control(const QString& window, const QString& control) {
    QWidget& place = Window(window);
    for (QWidget* child : place.findChildren<QWidget*>(control)) {
        if (child->window() == &place) {  // not one of a dialog that belongs to the window
            return *child;
        }
    }
    qFatal("there is no %s in %s", qPrintable(control), qPrintable(window));
}

QString Sitting::Text(const QString& window, const QString& control) {
    QWidget& widget = Control(window, control);
    return widget.isVisible() ? widget.property("text").toString() : "(not seen)";
}

QString Sitting::Commands() {
    QString keys;
    for (std::size_t i = 0; i < CommandNames.size(); ++i) {
        if (Control("frm3", QLatin1String(CommandNames[i])).isEnabled()) {
            keys += QLatin1Char("bsrautev"[i]);
        }
    }
    return keys;
}

QString Sitting::ReportText() {
    const QString report = "frmReport";
    return Title(report) + u'\n' + Text(report, "lbl1") + u'\n' + Text(report, "lbl2");
}

int Sitting::ReportPicture() {
    QWidget& picture = Control("frmReport", "imgC");
    for (int player = 0; picture.isVisible() && player < MaxPlayers; ++player) {
        if (Painted(picture) == Asset(QString("marker%1").arg(player))) {
            return player;
        }
    }
    return picture.isVisible() ? MaxPlayers : -1;
}

QString Sitting::MapFault(const GameState& game) {
    for (int t = 0; t < NumTerritories; ++t) {
        if (const QString fault = TerritoryFault(game.TerritoryAt(t), t); !fault.isEmpty()) {
            return fault;
        }
    }
    return {};
}

int Sitting::Beeps() {
    return std::exchange(beeps, 0);
}

void Sitting::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&Keyboard(), key, modifiers);
    QCoreApplication::processEvents();
}

void Sitting::Hold(Qt::Key key, const QString& text) {
    for (int i = 0; i < 3; ++i) {
        QKeyEvent again(QEvent::KeyPress, key, {}, text, true);
        QCoreApplication::sendEvent(&Keyboard(), &again);
    }
    QCoreApplication::processEvents();
}

void Sitting::Type(const QString& text) {
    for (const QChar letter : text) {
        if (letter == u'\t') {
            Press(Qt::Key_Tab);
        } else if (letter == u'\n') {
            Press(Qt::Key_Return);
        } else {
            QTest::keyClick(&Keyboard(), letter.toLatin1());
        }
    }
    QCoreApplication::processEvents();
}

void Sitting::Fill(const QString& window, const QString& field, const QString& text) {
    Click(window, field);
    Window(window).activateWindow();
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    const bool plain = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u' ' && c <= u'~'; });
    if (plain) {
        Type(text);
    } else {
        QGuiApplication::clipboard()->setText(text);
        Press(Qt::Key_V, Qt::ControlModifier);
    }
}

void Sitting::Click(const QString& window, const QString& control) {
    QWidget& place = Window(window);
    const QPoint middle = Control(window, control).rect().center();
    QTest::mouseClick(place.windowHandle(), Qt::LeftButton, {},
                      Control(window, control).mapTo(&place, middle));
    QCoreApplication::processEvents();
}

QPoint Sitting::PlaceOfSaved(const QString& file) {
    auto& list = static_cast<QListWidget&>(Control("frmLoad", "flb1"));
    const auto items = list.findItems(file, Qt::MatchExactly);
    if (items.isEmpty()) {
        qFatal("%s is not among the saved games", qPrintable(file));
    }
    list.scrollToItem(items.front());
    return list.viewport()->mapTo(&Window("frmLoad"), list.visualItemRect(items.front()).center());
}

void Sitting::ClickSaved(const QString& file) {
    QTest::mouseClick(Window("frmLoad").windowHandle(), Qt::LeftButton, {}, PlaceOfSaved(file));
}

void Sitting::PointAt(const QString& window, const QString& control) {
    QWidget& widget = Control(window, control);
    PointAt(window, widget.mapTo(&Window(window), widget.rect().center()));
}

void Sitting::PointAt(const QString& window, QPoint place) {
    QTest::mouseMove(Window(window).windowHandle(), place);
    QCoreApplication::processEvents();
}

void Sitting::CloseWindow(const QString& window) {
    Window(window).windowHandle()->close();
    QCoreApplication::processEvents();
}

bool Sitting::Ends(const std::function<void()>& deed) {
    QTimer::singleShot(0, qApp, deed);
    QTimer limit;
    limit.callOnTimeout(qApp, [] { QCoreApplication::exit(1); });
    limit.start(5000);
    const int code = QCoreApplication::exec();
    const auto windows = QApplication::topLevelWidgets();
    return code == 0 &&
           std::none_of(windows.begin(), windows.end(), [](const QWidget* w) { return w->isVisible(); });
}

bool Sitting::eventFilter(QObject* watched, QEvent* event) {
    auto* box = qobject_cast<QMessageBox*>(watched);
    if (box != nullptr && event->type() == QEvent::Show) {
        QMetaObject::invokeMethod(
            box, [this, box] { Answer(*box); }, Qt::QueuedConnection);
    } else if (box != nullptr && event->type() == QEvent::Hide) {
        // A desktop gives the keyboard back to the box's owner; there is none here to do it.
        QMetaObject::invokeMethod(
            box->parentWidget(),
            [owner = box->parentWidget()] {
                if (QApplication::activeModalWidget() == nullptr) {
                    owner->activateWindow();
                }
            },
            Qt::QueuedConnection);
    }
    return false;
}

void Sitting::Answer(QMessageBox& box) {
    const QString seen = Description(box.icon(), box.windowTitle(), box.text(), box.standardButtons());
    if (expected_.empty()) {
        Fail("an unexpected message box, " + seen);
        box.reject();
        return;
    }
    const Box wanted = expected_.front();
    expected_.pop_front();
    const bool question = wanted.Answer != QMessageBox::Ok;
    const int buttons = question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok;
    if (const QString due = Description(wanted.Icon, wanted.Title, wanted.Text, buttons); seen != due) {
        Fail(QString("seen: %1\ndue:  %2").arg(seen, due));
    }
    if (wanted.Meanwhile) {
        wanted.Meanwhile();
    }
    if (!QTest::qWaitForWindowActive(&box)) {
        Fail("the message box does not have the keyboard");
    }
    Type(!question ? "\n" : wanted.Answer == QMessageBox::Yes ? "y" : "n");
}

}  // namespace vorlund
