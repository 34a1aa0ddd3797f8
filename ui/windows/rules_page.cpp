// SPDX-License-Identifier: MIT
#include "ui/windows/rules_page.h"

#include <QFile>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>

#include "ui/parts/scroll_bars.h"

using namespace Qt::StringLiterals;

namespace vorlund {
namespace {

// In pixels of the layout
constexpr QSize PageSize(480, 480);
constexpr int Margin = 12;
constexpr int TextSize = 13;
constexpr int Indent = 18;
constexpr int GapBelowItem = 3;
constexpr int GapAboveHeading = 12;

QString Rules() {
    QFile file(u":/docs/rules.md"_s);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void LayOut(QTextDocument& document) {
    document.setDocumentMargin(Zoomed(Margin));
    document.setIndentWidth(Zoomed(Indent));
    QTextCharFormat headingFormat;
    headingFormat.setForeground(ColourOf(Face::Heading));
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        QTextBlockFormat format = block.blockFormat();
        const bool heading = format.headingLevel() > 0;
        format.setTopMargin(heading && block != document.begin() ? Zoomed(GapAboveHeading) : 0);
        format.setBottomMargin(Zoomed(GapBelowItem));
        cursor.setBlockFormat(format);
        if (heading) {
            cursor.select(QTextCursor::BlockUnderCursor);
            cursor.mergeCharFormat(headingFormat);
        }
    }
}

}  // namespace

RulesPage::RulesPage()
    : Screen(nullptr, u"RulesPage"_s, u"Vorlund - Rules"_s, PageSize), text_(new Placed<QTextBrowser>(this)) {
    auto* placed = static_cast<Placed<QTextBrowser>*>(text_);
    placed->PlaceAt(QRect(QPoint(0, 0), PageSize));
    text_->setObjectName(u"rules"_s);
    text_->setAccessibleName(u"Rules"_s);
    text_->setFrameShape(QFrame::NoFrame);
    DressScrollBar(*text_);
    QPalette colours = text_->palette();
    colours.setColor(QPalette::Base, colour::Window);
    colours.setColor(QPalette::Text, colour::Caption);
    text_->setPalette(colours);
    text_->setMarkdown(Rules());
    FollowZoom();
    connect(&Zoom::OfApplication(), &Zoom::Changed, this, &RulesPage::FollowZoom);
}

void RulesPage::FollowZoom() {
    QFont font = FontOf(Face::Caption);
    font.setPixelSize(Zoomed(TextSize));
    text_->setFont(font);
    LayOut(*text_->document());
}

void RulesPage::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    Screen::keyPressEvent(event);
}

}  // namespace vorlund
