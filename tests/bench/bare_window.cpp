#include <string_view>

#include "tests/bench/first_paint.h"

// An empty window of the size of the title screen or of the board.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.setFixedSize(std::string_view(argv[1]) == "title" ? QSize(400, 223) : QSize(750, 525));
    window.show();
    return TellPaintAndStay();
}
