// SPDX-License-Identifier: MIT
#include "dialogs/HelpManager.h"
#include "app/AppRegistry.h"
#include "app/Translations.h"
#include "dialogs/AssistantClient.h"
#include "dialogs/HelpCollection.h"
#include "dialogs/HelpViewer.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

QString pathOf(const AppRegistry& registry, const QString& page)
{
    return QDir::cleanPath(HelpManager::HelpDirectory(registry) + u'/' + page);
}

} // namespace

QString HelpManager::currentHelpPage = u"genericApplication.htm"_s;

HelpManager::HelpManager(const AppRegistry& suite, QObject* parent)
    : QObject(parent)
    , registry(suite)
    , assistant(new AssistantClient({}, this))
{
    if (parent) {
        parent->installEventFilter(this);
    }
    connect(assistant, &AssistantClient::error, this, &HelpManager::slt_showError);
}

HelpManager::~HelpManager()
{
    // It reads from the collection.
    delete viewer;
}

QString HelpManager::HelpDirectory(const AppRegistry& registry)
{
    return QDir::cleanPath(registry.values.helpArea + u'/' + registry.installValues.helpDir);
}

QString HelpManager::profile(const AppRegistry& registry)
{
    return QDir::cleanPath(HelpDirectory(registry) + u'/' + registry.installValues.helpFile);
}

QStringList HelpManager::ViewerArguments(const AppRegistry& registry, const HelpCollection& collection)
{
    const QString& given = registry.installValues.helpProfileStr;
    // Qt Assistant no longer knows the switch of the old profiles.
    const bool outdated = collection.isCollection() && given == StringValues().helpProfileStr;
    return {outdated ? u"-collectionFile"_s : given, profile(registry)};
}

bool HelpManager::HelpAvailable(const AppRegistry& registry)
{
    const QString& area = registry.values.helpArea;
    return !area.isEmpty() && QFile::exists(area) && QFile::exists(profile(registry));
}

bool HelpManager::eventFilter(QObject* /*object*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_F1 && key != Qt::Key_Help) {
        return false;
    }
    slt_showHelp(currentHelpPage);
    return true;
}

QUrl HelpManager::find(const QString& helpPage)
{
    const QString language = Translations::language();
    const QUrl own = language.isEmpty() ? QUrl() : findPath(pathOf(registry, language + u'/' + helpPage));
    return own.isEmpty() ? findPath(pathOf(registry, helpPage)) : own;
}

QUrl HelpManager::findPath(const QString& path)
{
    if (!collection) {
        collection = std::make_unique<HelpCollection>(profile(registry));
    }
    const QUrl address(path);
    return address.scheme() == "qthelp"_L1 ? address : collection->find(path);
}

void HelpManager::slt_showHelp(const QString& helpPage, bool fullPath)
{
    const QUrl url = fullPath ? findPath(helpPage) : find(helpPage);
    if (url.isEmpty()) {
        const QString page = fullPath ? helpPage : pathOf(registry, helpPage);
        slt_showError(tr("The help page %1 is not there. Install the suite's help again.").arg(page));
        return;
    }
    show(url);
}

void HelpManager::showPageOf(const QString& helpPage)
{
    slt_showHelp(find(helpPage).isEmpty() ? currentHelpPage : helpPage);
}

void HelpManager::show(const QUrl& page)
{
    // Assistant shows an empty page for a file outside its collections.
    if (page.scheme() == "qthelp"_L1 && !AssistantClient::program().isEmpty()) {
        assistant->setArguments(ViewerArguments(registry, *collection));
        assistant->showPage(page);
        return;
    }
    // A window of another parent than the dialog that waits for an answer could not be used.
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* owner = modal ? modal : qobject_cast<QWidget*>(parent());
    if (viewer && viewer->parentWidget() != owner) {
        viewer->hide();
        viewer->deleteLater();
        viewer.clear();
    }
    if (!viewer) {
        viewer = new HelpViewer(*collection, owner);
    }
    viewer->showPage(page);
}

void HelpManager::slt_showHelp(const QString& helpPage)
{
    slt_showHelp(helpPage, false);
}

void HelpManager::slt_showError(const QString& str)
{
    QMessageBox box(QMessageBox::Critical, tr("Assistant Error"), str, QMessageBox::NoButton,
                    qobject_cast<QWidget*>(parent()));
    box.setTextFormat(Qt::PlainText);
    QPushButton* ok = box.addButton(tr("OK"), QMessageBox::AcceptRole);
    box.setDefaultButton(ok);
    box.setEscapeButton(ok);
    box.exec();
}
