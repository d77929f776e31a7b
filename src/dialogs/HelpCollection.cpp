// SPDX-License-Identifier: MIT
#include "dialogs/HelpCollection.h"

#include <QFileInfo>
#include <QHelpEngineCore>

using namespace Qt::StringLiterals;

HelpCollection::HelpCollection(const QString& profile)
{
    if (!profile.endsWith(".qhc"_L1) || !QFileInfo(profile).isFile()) {
        return;
    }
    engine = std::make_unique<QHelpEngineCore>(profile);
    engine->setReadOnly(true);
    if (!engine->setupData()) {
        engine.reset();
    }
}

HelpCollection::~HelpCollection() = default;

QUrl HelpCollection::find(const QString& pagePath) const
{
    const QString name = QFileInfo(pagePath).fileName();
    if (engine) {
        const QStringList documents = engine->registeredDocumentations();
        for (const QString& document : documents) {
            const QList<QUrl> pages = engine->files(document, QString());
            for (const QUrl& page : pages) {
                if (page.fileName() == name) {
                    return page;
                }
            }
        }
    }
    return QFileInfo(pagePath).isFile() ? QUrl::fromLocalFile(pagePath) : QUrl();
}

QByteArray HelpCollection::contents(const QUrl& page) const
{
    return engine ? engine->fileData(page) : QByteArray();
}
