// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QUrl>

#include <memory>

class QHelpEngineCore;

/// The help profile, when it is a Qt help collection, whatever it is called. Another profile holds nothing.
class HelpCollection
{
public:
    explicit HelpCollection(const QString& profile);
    ~HelpCollection();

    bool isCollection() const { return engine != nullptr; }
    /// Where a page, named by its path as if it lay beside the profile, is shown from: its address inside the
    /// collection, else the file's; empty when it is in neither.
    QUrl find(const QString& pagePath) const;
    QByteArray contents(const QUrl& page) const;

private:
    QDir folder;
    std::unique_ptr<QHelpEngineCore> engine;
};
