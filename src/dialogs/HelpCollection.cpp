// SPDX-License-Identifier: MIT
#include "dialogs/HelpCollection.h"
#include "dialogs/HelpEngine.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// Told by its first bytes: a collection may have any name, and the engine would turn an empty file into one.
bool isDatabase(const QString& profile)
{
    QFile file(profile);
    return file.open(QIODevice::ReadOnly) && file.read(15) == "SQLite format 3";
}

} // namespace

HelpCollection::HelpCollection(const QString& profile)
    : folder(QFileInfo(profile).absolutePath())
{
    if (QFileInfo(profile).isFile() && isDatabase(profile)) {
        engine = HelpEngine::open(profile);
    }
}

HelpCollection::~HelpCollection() = default;

QUrl HelpCollection::find(const QString& pagePath) const
{
    const QString name = folder.relativeFilePath(pagePath);
    const bool isFile = QFileInfo(pagePath).isFile();
    QUrl namesake;
    const QList<QUrl> pages = engine ? engine->pages() : QList<QUrl>();
    for (const QUrl& page : pages) {
        // An address is made of the collection's virtual folder and the page's path.
        if (page.path().section(u'/', 2) == name) {
            return page;
        }
        // Translations lie in folders of their own, so the shorter path is the usual page.
        const bool isShorter = namesake.isEmpty() || page.path().size() < namesake.path().size();
        if (isShorter && page.fileName() == QFileInfo(pagePath).fileName()) {
            namesake = page;
        }
    }
    // A file elsewhere is meant itself; else the page may lie in a folder of the collection.
    const bool isElsewhere = name.startsWith(".."_L1);
    if (isFile && (isElsewhere || namesake.isEmpty())) {
        return QUrl::fromLocalFile(pagePath);
    }
    return namesake;
}

QByteArray HelpCollection::contents(const QUrl& page) const
{
    return engine ? engine->contents(page) : QByteArray();
}
