// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>

class QCoreApplication;
class QTranslator;

/// The texts in the user's language. The source texts are English; a catalogue each for the others is embedded.
namespace Translations {

/// The locale of the user's texts. Under the C locale, which scripts choose for the source texts, it is that one
/// whatever languages are preferred.
QLocale userLocale();

/// Loads the first catalogue that a language of this locale has; gives the language's name, empty for English.
QString load(QTranslator& translator, const QLocale& locale);

/// Gives the application that catalogue.
void install(const QLocale& locale);

/// The language of that catalogue in two letters, "de"; empty for English.
QString language();

/// Gives the application Qt's own texts in the same language, where Qt's catalogues are installed: whoever gets the
/// program in English shall not find other words on its buttons.
void installQtTexts(QCoreApplication& application);

} // namespace Translations
