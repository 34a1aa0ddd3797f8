// SPDX-License-Identifier: MIT
#include "ui/machine/single_copy.h"

#include <QDir>

#include "ui/machine/data_folder.h"

namespace vorlund {
namespace {

QString LockPath() {
    // Asked of the environment: the toolkit would invent a folder, and say so on the terminal, where there is
    // none.
    QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (folder.isEmpty() || !QDir(folder).exists()) {
        const std::string data = DataFolder();
        folder = QString::fromStdString(data);
        if (folder.toStdString() != data) {
            return {};  // there can be no lock in a folder whose name is not UTF-8
        }
        QDir().mkpath(folder);
    }
    return folder + QStringLiteral("/vorlund.lock");
}

}  // namespace

SingleCopy::SingleCopy() : lock_(LockPath()) {
    // The lock of a copy that was killed is recognised by its process, not by its age.
    lock_.setStaleLockTime(0);
    otherIsRunning_ = !lock_.tryLock(0) && lock_.error() == QLockFile::LockFailedError;
}

}  // namespace vorlund
