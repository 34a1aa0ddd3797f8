// SPDX-License-Identifier: MIT
#include "ui/machine/data_folder.h"

#include <QByteArray>
#include <QtGlobal>

namespace vorlund {

std::string DataFolder() {
    const QByteArray folder = qgetenv("XDG_DATA_HOME");
    // One that depends on where the game is started does not count.
    return (folder.startsWith('/') ? folder : qgetenv("HOME") + "/.local/share").toStdString();
}

}  // namespace vorlund
