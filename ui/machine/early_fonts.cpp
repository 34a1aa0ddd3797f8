#include "ui/machine/early_fonts.h"

#include <dlfcn.h>

namespace vorlund {

// The toolkit asks for the same list later, and finds it read; fontconfig itself sees to the threads. Nothing
// of the toolkit may be called here: it takes the first thread that calls it for the main one.
EarlyFonts::EarlyFonts()
    : reader_([] {
          if (void* library = dlopen("libfontconfig.so.1", RTLD_LAZY); library != nullptr) {
              // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): a library gives its functions so
              if (const auto read = reinterpret_cast<int (*)()>(dlsym(library, "FcInit")); read != nullptr) {
                  read();
              }
          }
      }) {}

}  // namespace vorlund
