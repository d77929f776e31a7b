// SPDX-License-Identifier: MIT
#include "app/PersistedValues.h"
#include "app/SettingsStore.h"
#include "definitions/PathHelpers.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

enum class Written { AsHeld, ForwardSlashes, Never };

struct StringKey
{
    QLatin1StringView key;
    QString PersistedValues::*member;
    Written written;
};

struct ListKey
{
    QLatin1StringView key;
    QStringList PersistedValues::*member;
    Written written;
};

struct FlagKey
{
    QLatin1StringView key;
    bool PersistedValues::*member;
};

constexpr std::array stringKeys = {
    StringKey{"binArea"_L1, &PersistedValues::binArea, Written::ForwardSlashes},
    StringKey{"xmlArea"_L1, &PersistedValues::xmlArea, Written::ForwardSlashes},
    StringKey{"helpArea"_L1, &PersistedValues::helpArea, Written::ForwardSlashes},
    StringKey{"orvc_compilerPersonality"_L1, &PersistedValues::cCompilerPersonality, Written::ForwardSlashes},
    StringKey{"orvcpp_compilerPersonality"_L1, &PersistedValues::cppCompilerPersonality, Written::ForwardSlashes},
    StringKey{"orvc_analyserPersonality"_L1, &PersistedValues::cAnalyserPersonality, Written::ForwardSlashes},
    StringKey{"orvcpp_analyserPersonality"_L1, &PersistedValues::cppAnalyserPersonality, Written::ForwardSlashes},
    StringKey{"orvc_messagePersonality"_L1, &PersistedValues::cMessagePersonality, Written::ForwardSlashes},
    StringKey{"orvcpp_messagePersonality"_L1, &PersistedValues::cppMessagePersonality, Written::ForwardSlashes},
    StringKey{"orvc_personalityLocation"_L1, &PersistedValues::cPersonalityLocation, Written::ForwardSlashes},
    StringKey{"orvcpp_personalityLocation"_L1, &PersistedValues::cppPersonalityLocation, Written::ForwardSlashes},
    StringKey{"rootMakefile"_L1, &PersistedValues::rootMakefile, Written::ForwardSlashes},
    StringKey{"autoCreateStartingDir"_L1, &PersistedValues::autoCreateStartingDir, Written::ForwardSlashes},
    StringKey{"autoCreateOutpath"_L1, &PersistedValues::autoCreateOutpath, Written::AsHeld},
    StringKey{"installPath"_L1, &PersistedValues::installPath, Written::Never},
    StringKey{"cpp_currentCEValue"_L1, &PersistedValues::cppCurrentCEValue, Written::AsHeld},
    StringKey{"c_currentCEValue"_L1, &PersistedValues::cCurrentCEValue, Written::AsHeld},
};

constexpr std::array listKeys = {
    ListKey{"autoCreateExts"_L1, &PersistedValues::autoCreateExts, Written::AsHeld},
    ListKey{"autoCreateIncludes"_L1, &PersistedValues::autoCreateIncludes, Written::AsHeld},
    ListKey{"autoCreateDefines"_L1, &PersistedValues::autoCreateDefines, Written::AsHeld},
    ListKey{"searchPaths"_L1, &PersistedValues::searchPaths, Written::Never},
    ListKey{"projectList"_L1, &PersistedValues::projectList, Written::ForwardSlashes},
    ListKey{"orvc_messages"_L1, &PersistedValues::cMessages, Written::AsHeld},
    ListKey{"orvcpp_messages"_L1, &PersistedValues::cppMessages, Written::AsHeld},
};

constexpr std::array flagKeys = {
    FlagKey{"projectCreatorProductType"_L1, &PersistedValues::projectCreatorProductType},
    FlagKey{"useMessageViewerMessages"_L1, &PersistedValues::useMessageViewerMessages},
    FlagKey{"runCMA"_L1, &PersistedValues::runCMA},
};

QString suiteApplication()
{
    return u"WendleTools"_s;
}

QString projectFileKey()
{
    return u"projectFile"_s;
}

} // namespace

void PersistedValues::Read(const QString& executable)
{
    const QString folder = QFileInfo(executable).absolutePath();
    const QString parent = QFileInfo(folder).absolutePath();
    binArea = folder;
    xmlArea = AbsoluteJoin(parent, u"xml"_s);
    helpArea = AbsoluteJoin(parent, u"help"_s);
    installPath = QDir::currentPath();

    const std::unique_ptr<QSettings> store = SettingsStore::openForReading(suiteApplication());
    for (const StringKey& entry : stringKeys) {
        this->*entry.member = store->value(entry.key, this->*entry.member).toString();
    }
    for (const ListKey& entry : listKeys) {
        this->*entry.member = store->value(entry.key).toStringList();
    }
    for (const FlagKey& entry : flagKeys) {
        this->*entry.member = store->value(entry.key, true).toBool();
    }
    // Installations are looked for later.
    project.load(store->value(projectFileKey()).toString(),
                 {.cConfiguration = cCurrentCEValue, .cppConfiguration = cppCurrentCEValue});
}

void PersistedValues::Write() const
{
    SettingsStore::write(suiteApplication(), [this](QSettings& store) {
        for (const StringKey& entry : stringKeys) {
            if (entry.written == Written::Never) {
                continue;
            }
            const QString& value = this->*entry.member;
            store.setValue(entry.key, entry.written == Written::ForwardSlashes ? ToForwardSlashes(value) : value);
        }
        for (const ListKey& entry : listKeys) {
            if (entry.written == Written::Never) {
                continue;
            }
            QStringList values = this->*entry.member;
            if (entry.written == Written::ForwardSlashes) {
                values.replaceInStrings(u"\\"_s, u"/"_s);
            }
            store.setValue(entry.key, values);
        }
        for (const FlagKey& entry : flagKeys) {
            store.setValue(entry.key, this->*entry.member);
        }
        store.setValue(projectFileKey(), ToForwardSlashes(project.projectFile));
    });
}
