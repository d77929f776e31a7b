// SPDX-License-Identifier: MIT
#include "project/ProjectTarget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

Result<void> ProjectTarget::createFolder(const QString& folder)
{
    if (QDir().mkpath(folder)) {
        return {};
    }
    // Qt does not tell why.
    std::error_code reason;
    std::filesystem::create_directories(QFileInfo(folder).filesystemAbsoluteFilePath(), reason);
    return {
        QString::fromLocal8Bit(reason ? reason.message() : std::make_error_code(std::errc::not_a_directory).message())};
}

Result<void> ProjectTarget::checkWritable(const QString& file)
{
    const QFileInfo info(file);
    // The file that a link leads to is not touched: the new project takes the link's place.
    if (info.exists() && !info.isSymLink()) {
        QFile present(file);
        if (!info.isFile()) {
            return {QString::fromStdString(std::make_error_code(std::errc::is_a_directory).message())};
        }
        return present.open(QIODevice::ReadWrite) ? Result<void>() : Result<void>{present.errorString()};
    }
    // A file of another name, which nobody else can have made or take for a project.
    QTemporaryFile probe(info.absolutePath() + u"/.kovra-XXXXXX"_s);
    return probe.open() ? Result<void>() : Result<void>{probe.errorString()};
}
