// SPDX-License-Identifier: MIT
#include "app/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The variable that decides about the texts; LANGUAGE only orders the languages.
QString messagesLocale()
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        QString value = qEnvironmentVariable(name);
        if (!value.isEmpty()) {
            return value;
        }
    }
    return {};
}

// The language of the program's own texts; empty for English.
QString& installedLanguage()
{
    static QString language;
    return language;
}

void keep(std::unique_ptr<QTranslator> translator, QCoreApplication& application)
{
    translator->setParent(&application);
    QCoreApplication::installTranslator(translator.release());
}

} // namespace

QLocale Translations::userLocale()
{
    const QString name = messagesLocale();
    return name == "C"_L1 || name == "POSIX"_L1 ? QLocale::c() : QLocale::system();
}

QString Translations::load(QTranslator& translator, const QLocale& locale)
{
    const QStringList languages = locale.uiLanguages();
    for (const QString& language : languages) {
        const QLocale wanted(language);
        // Who prefers English is served by the source texts, whatever comes behind.
        if (wanted.language() == QLocale::English || wanted.language() == QLocale::C) {
            return {};
        }
        if (translator.load(u"ProjectCreation_"_s + wanted.name(), u":/i18n"_s)) {
            return wanted.name();
        }
    }
    return {};
}

void Translations::install(const QLocale& locale)
{
    auto own = std::make_unique<QTranslator>();
    installedLanguage() = load(*own, locale);
    if (!installedLanguage().isEmpty()) {
        keep(std::move(own), *QCoreApplication::instance());
    }
}

QString Translations::language()
{
    return installedLanguage().section(u'_', 0, 0);
}

void Translations::installQtTexts(QCoreApplication& application)
{
    auto qt = std::make_unique<QTranslator>();
    if (!installedLanguage().isEmpty() &&
        qt->load(u"qt_"_s + installedLanguage(), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        keep(std::move(qt), application);
    }
}
