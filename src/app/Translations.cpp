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

void keep(std::unique_ptr<QTranslator> translator)
{
    translator->setParent(QCoreApplication::instance());
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
    const QString language = load(*own, locale);
    if (language.isEmpty()) {
        return;
    }
    auto qt = std::make_unique<QTranslator>();
    if (qt->load(u"qtbase_"_s + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        keep(std::move(qt));
    }
    keep(std::move(own));
}
