#include <QApplication>
#include <QWidget>
#include <string_view>

#include "tests/bench/first_paint.h"

// An empty window of the title screen's size, or of the board's when its memory is asked for.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const bool memory = argc > 1 && std::string_view(argv[1]) == "memory";
    FirstPaint firstPaint(memory);
    qApp->installEventFilter(&firstPaint);
    QWidget window;
    window.setFixedSize(memory ? QSize(750, 525) : QSize(400, 223));
    window.show();
    return QApplication::exec();
}
