// SPDX-License-Identifier: MIT
#include "ui/windows/frmReport.h"

#include <QFontMetrics>
#include <QScrollBar>
#include <QWindow>

#include "ui/parts/announcement.h"
#include "ui/parts/keys.h"
#include "ui/parts/scroll_bars.h"
#include "ui/windows/game_navigation.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

constexpr QRect PictureFrame(120, 20, 10, 10);
constexpr QRect HeadlineFrame(8, 16, 481, 25);
constexpr QRect BodyFrame(24, 48, 449, 137);
constexpr int PictureGap = 8;

}  // namespace

frmReport::frmReport(GameNavigation& navigation)
    : Screen(nullptr, u"frmReport"_s, u"Vorlund - Report"_s, QSize(499, 220), {}, Qt::Dialog),
      navigation_(navigation) {
    SetRole(QAccessible::AlertMessage);
    lbl1_ = AddText(u"lbl1"_s, Face::Heading, HeadlineFrame);
    imgC_ = new PictureLabel(this, u"imgC"_s, PictureFrame);
    scroll_ = new Placed<QScrollArea>(this);
    scroll_->PlaceAt(BodyFrame);
    scroll_->setFrameShape(QFrame::NoFrame);
    DressScrollBar(*scroll_);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->viewport()->setAutoFillBackground(false);
    scroll_->viewport()->setMouseTracking(true);  // so that moving here resets the command's hover colour
    scroll_->setMouseTracking(true);
    lbl2_ = new TextLabel(nullptr, u"lbl2"_s, Face::Caption, QRect(QPoint(0, 0), BodyFrame.size()));
    lbl2_->setWordWrap(true);
    lbl2_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    scroll_->setWidget(lbl2_);
    lbl2_->setAutoFillBackground(false);
    CommandLabel* lblCont = AddCommand(u"lblCont"_s, u"Continue"_s, QRect(214, 192, 72, 19));
    lblCont->SetKey(u"Enter"_s);
    connect(lblCont, &CommandLabel::clicked, this, &frmReport::close);
    connect(&Zoom::OfApplication(), &Zoom::Changed, this, &frmReport::LayOut);
}

void frmReport::ShowReport(const Report& report, const Picture* picture, QWidget* owner) {
    SetTitle(report.Title);
    imgC_->Show(picture);
    imgC_->setVisible(picture != nullptr);
    lbl1_->Show(report.Headline);
    lbl2_->Show(report.Body);
    LayOut();
    scroll_->verticalScrollBar()->setValue(0);
    winId();
    windowHandle()->setTransientParent(owner != nullptr ? owner->windowHandle() : nullptr);
    const bool opens = !isVisible();
    setAccessibleName(lbl1_->text());
    Present();
    if (!opens) {
        // A screen reader reads out a window when it is activated, and this one has been active before.
        Announce(*this, lbl1_->text() + u'\n' + lbl2_->text());
    }
}

void frmReport::LayOut() {
    // With a picture, the headline starts to the right of it on the same line.
    const bool pictured = imgC_->isVisibleTo(this);
    const int left = pictured ? PictureFrame.right() + PictureGap - HeadlineFrame.left() : 0;
    const int below =
        HeadlineFrame.bottom() - PictureFrame.bottom() - (PictureFrame.top() - HeadlineFrame.top());
    lbl1_->setContentsMargins(Zoomed(left), 0, 0, Zoomed(below));
    lbl1_->setAlignment((pictured ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter);
    lbl1_->Refit(HeadlineFrame);
    // Without the line break at the end of the body, which needs no room.
    const QSize body = scroll_->size();
    const QFontMetrics metrics(lbl2_->font());
    const QString text = lbl2_->text().trimmed();
    const auto height = [&](int width) {
        return metrics.boundingRect(0, 0, width, 0, Qt::TextWordWrap, text).height();
    };
    const bool scrolls = height(body.width()) > body.height();
    const int width = body.width() - (scrolls ? scroll_->verticalScrollBar()->sizeHint().width() : 0);
    lbl2_->resize(width, scrolls ? height(width) : body.height());
}

bool frmReport::HandleCloseRequest() {
    return !navigation_.ReportClosed();
}

bool frmReport::Scroll(int key) {
    QScrollBar* bar = scroll_->verticalScrollBar();
    switch (key) {
        case Qt::Key_Up:
            bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
            return true;
        case Qt::Key_Down:
            bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
            return true;
        case Qt::Key_PageUp:
            bar->triggerAction(QAbstractSlider::SliderPageStepSub);
            return true;
        case Qt::Key_PageDown:
            bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
            return true;
        case Qt::Key_Home:
            bar->triggerAction(QAbstractSlider::SliderToMinimum);
            return true;
        case Qt::Key_End:
            bar->triggerAction(QAbstractSlider::SliderToMaximum);
            return true;
        default:
            return false;
    }
}

void frmReport::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(*event) || event->key() == Qt::Key_Escape) {
        close();
    } else if (!Scroll(event->key())) {
        Screen::keyPressEvent(event);
    }
}

}  // namespace vorlund
