// SPDX-License-Identifier: MIT
#include <QLabel>
#include <string_view>

#include "bench/first_paint.h"

using namespace Qt::StringLiterals;

// The reference of the benchmark: a window with one line of text, as large as the title screen or the board.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QLabel window(u"Vorlund"_s);
    window.setFixedSize(std::string_view(argv[1]) == "title" ? QSize(400, 223) : QSize(750, 525));
    window.show();
    return TellPaintAndStay();
}
