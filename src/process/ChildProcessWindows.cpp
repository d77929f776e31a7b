// SPDX-License-Identifier: MIT
#include "process/BatchFile.h"
#include "process/ChildProcess.h"

#include <QDir>
#include <QFileInfo>

#include <array>

#include <qt_windows.h>

#include <shlwapi.h>

using namespace Qt::StringLiterals;

namespace {

// Never that of a variable or a search path, where anybody could have put it.
QString commandInterpreter()
{
    std::array<wchar_t, MAX_PATH> folder = {};
    ::GetSystemDirectoryW(folder.data(), UINT(folder.size()));
    return QString::fromWCharArray(folder.data()) + u"\\cmd.exe"_s;
}

// The program and first arguments that the system has for files of this kind, which take arguments themselves; none
// for what it starts as it is, and for documents.
QStringList interpreterOf(const QString& file)
{
    const std::wstring suffix = L'.' + QFileInfo(file).suffix().toStdWString();
    std::array<wchar_t, 2048> command = {};
    auto size = DWORD(command.size());
    if (::AssocQueryStringW(ASSOCF_NONE, ASSOCSTR_COMMAND, suffix.c_str(), nullptr, command.data(), &size) != S_OK) {
        return {};
    }
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(command.data(), &count);
    QStringList texts;
    for (int i = 0; words && i < count; ++i) {
        texts += QString::fromWCharArray(words[i]);
    }
    ::LocalFree(words);
    if (!texts.removeOne(u"%*"_s) || texts.first().contains(u"%1"_s)) {
        return {};
    }
    texts.replaceInStrings(u"%1"_s, QDir::toNativeSeparators(file))
        .replaceInStrings(u"%L"_s, QDir::toNativeSeparators(file));
    return texts;
}

} // namespace

void ChildProcess::launch(const QString& program, const QStringList& arguments)
{
    setNativeArguments({});
    if (BatchFile::isOne(program)) {
        const Result<QString> line = BatchFile::interpreterArguments(program, arguments);
        if (!line.ok()) {
            setErrorString(line.problem);
            Q_EMIT errorOccurred(QProcess::FailedToStart);
            return;
        }
        setNativeArguments(line.value);
        start(commandInterpreter(), {}, QIODevice::ReadWrite);
        return;
    }
    const QStringList interpreter = interpreterOf(program);
    if (interpreter.isEmpty()) {
        start(program, arguments, QIODevice::ReadWrite);
    } else {
        start(interpreter.first(), interpreter.mid(1) + arguments, QIODevice::ReadWrite);
    }
}

void ChildProcess::leadGroup()
{
    setCreateProcessArgumentsModifier([this](CreateProcessArguments* arguments) {
        arguments->startupInfo =
            static_cast<Q_STARTUPINFO*>(group.startInside(arguments->startupInfo, arguments->flags));
    });
}
