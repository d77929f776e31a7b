// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>

class AppRegistry;
class AssistantClient;
class HelpCollection;
class HelpViewer;
class QUrl;

/// Shows the suite's help: in Qt Assistant, or in a viewer of its own where that is not installed. Watches its parent
/// for F1 and the Help key.
class HelpManager : public QObject
{
    Q_OBJECT

public:
    HelpManager(const AppRegistry& suite, QObject* parent);
    ~HelpManager() override;

    static QString HelpDirectory(const AppRegistry& registry);
    /// True when the suite has a help area with a profile in it.
    static bool HelpAvailable(const AppRegistry& registry);
    /// How Qt Assistant is told of the profile.
    static QStringList ViewerArguments(const AppRegistry& registry, const HelpCollection& collection);
    /// The page for F1 and the wizard's help button.
    static QString currentHelpPage;

    bool eventFilter(QObject* object, QEvent* event) override;
    /// Where a page below the help directory is shown from, in the user's language where there is one; empty when it is
    /// not there.
    QUrl find(const QString& helpPage);
    /// Shows the page, or where the suite's help has none of that name the general one.
    void showPageOf(const QString& helpPage);

public Q_SLOTS:
    /// Shows a page below the help directory, or with fullPath the page as given.
    void slt_showHelp(const QString& helpPage, bool fullPath);
    void slt_showHelp(const QString& helpPage);
    void slt_showError(const QString& str);

private:
    static QString profile(const AppRegistry& registry);
    /// Where the page of this path or address is shown from.
    QUrl findPath(const QString& path);
    void show(const QUrl& page);

    const AppRegistry& registry;
    std::unique_ptr<HelpCollection> collection;
    AssistantClient* assistant;
    QPointer<HelpViewer> viewer;
};
