// SPDX-License-Identifier: MIT
#include "ui/machine/single_copy.h"

#include <QDir>

#include "machine/folders.h"

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

QString LockPath() {
    // Not from QStandardPaths, which makes a folder and prints a warning if there is none.
    QString folder = QString::fromStdString(RuntimeFolder());
    if (folder.isEmpty() || !QDir(folder).exists()) {
        const std::string data = DataFolder();
        folder = QString::fromStdString(data);
        if (folder.toStdString() != data) {
            return {};  // QLockFile cannot open a path that is not UTF-8
        }
        QDir().mkpath(folder);
    }
    return folder + u"/vorlund.lock"_s;
}

}  // namespace

SingleCopy::SingleCopy() : lock_(LockPath()) {
    // 0: a lock is stale only if its process no longer exists, however old it is.
    lock_.setStaleLockTime(0);
    otherIsRunning_ = !lock_.tryLock(0) && lock_.error() == QLockFile::LockFailedError;
}

}  // namespace vorlund
