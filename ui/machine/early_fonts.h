#pragma once

#include <thread>

namespace vorlund {

/// Reads the desktop's list of fonts beside whatever its owner does next: with several dozen files it is the
/// longest single step to the title screen. Made before the connection to the desktop and kept for as long
/// as that takes; where the list is read by other means than fontconfig it does nothing.
class EarlyFonts {
public:
    EarlyFonts();
    ~EarlyFonts() { reader_.join(); }

    EarlyFonts(const EarlyFonts&) = delete;
    EarlyFonts& operator=(const EarlyFonts&) = delete;

private:
    std::thread reader_;
};

}  // namespace vorlund
