// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QUrl>

#include <memory>

class HelpEngine;

/// The help profile, when it is a Qt help collection that can be read, whatever it is called. Another holds nothing.
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
    std::unique_ptr<HelpEngine> engine;
};
