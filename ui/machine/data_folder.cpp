// SPDX-License-Identifier: MIT
#include "ui/machine/data_folder.h"

#include <QByteArray>
#include <QtGlobal>

namespace vorlund {

std::string DataFolder() {
    const QByteArray folder = qgetenv("XDG_DATA_HOME");
    // A relative path is invalid there and ignored.
    return (folder.startsWith('/') ? folder : qgetenv("HOME") + "/.local/share").toStdString();
}

}  // namespace vorlund
