#include "ui/machine/single_copy.h"

#include <QDir>
#include <QStandardPaths>

namespace vorlund {
namespace {

QString LockPath() {
    // Asked of the environment: the toolkit would invent a folder, and say so on the terminal, where there is
    // none.
    QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (folder.isEmpty() || !QDir(folder).exists()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
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
