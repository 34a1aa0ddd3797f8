// SPDX-License-Identifier: MIT
#include <QLabel>
#include <string_view>

#include "bench/first_paint.h"

// A window of the size of the title screen or of the board that shows one line of text.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QLabel window(QStringLiteral("Vorlund"));
    window.setFixedSize(std::string_view(argv[1]) == "title" ? QSize(400, 223) : QSize(750, 525));
    window.show();
    return TellPaintAndStay();
}
