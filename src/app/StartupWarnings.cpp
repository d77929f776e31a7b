// SPDX-License-Identifier: MIT
#include "app/StartupWarnings.h"
#include "app/AppRegistry.h"
#include "definitions/EnvironmentValue.h"
#include "definitions/PathHelpers.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// The context of the texts in the catalogues.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(StartupWarnings)
};

QString brokenDefinitions(const KOVRASettingsFile& definitions)
{
    const auto& [line, column, reason] = definitions.lastError;
    return line == 0 ? QString()
                     : Text::tr("The definitions file could only be read up to a mistake, and what follows is missing: "
                                "%1:%2:%3: %4")
                           .arg(QDir::toNativeSeparators(QFileInfo(definitions.file).absoluteFilePath()))
                           .arg(line)
                           .arg(column)
                           .arg(reason);
}

QString otherDefinitions(const AppRegistry& registry)
{
    const QString& asked = registry.definitionsFileName;
    const QString used = registry.DefinitionsFileName();
    return !registry.definitionsFileGiven || used == asked || !QFileInfo::exists(used)
               ? QString()
               : Text::tr("There is no definitions file %1; %2 is used instead.")
                     .arg(QDir::toNativeSeparators(asked), QDir::toNativeSeparators(used));
}

QString staleFolder(const QString& folder, const QString& variable)
{
    return folder.isEmpty() || QFileInfo::exists(folder) || EnvironmentValue(variable, false) != folder
               ? QString()
               : Text::tr("The environment variable %1 names a folder that does not exist: %2")
                     .arg(variable, QDir::toNativeSeparators(folder));
}

} // namespace

QStringList StartupWarnings::all(const AppRegistry& registry)
{
    QStringList warnings{brokenDefinitions(registry.definitions), otherDefinitions(registry),
                         staleFolder(registry.cInstallDir, u"ORVCPATH"_s),
                         staleFolder(registry.cppInstallDir, u"ORVCPPPATH"_s)};
    warnings.removeAll(QString());
    return warnings;
}

QString StartupWarnings::foreignDefinitions(const AppRegistry& registry)
{
    const QFileInfo used(registry.DefinitionsFileName());
    const QFileInfo own(AbsoluteJoin(registry.values.xmlArea, used.fileName()));
    return registry.definitionsFileGiven || !used.exists() || used.canonicalFilePath() == own.canonicalFilePath()
               ? QString()
               : Text::tr("The definitions file %1 is used, not the suite's; -file names the one that you want.")
                     .arg(QDir::toNativeSeparators(used.absoluteFilePath()));
}
