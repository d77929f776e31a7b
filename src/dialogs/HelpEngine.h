// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QUrl>

#include <memory>

class QString;

/// Reads a Qt help collection. Where the program is built without QtHelp nothing does, and help pages are shown from
/// the files beside the collection.
class HelpEngine
{
public:
    HelpEngine() = default;
    virtual ~HelpEngine() = default;
    HelpEngine(const HelpEngine&) = delete;
    HelpEngine& operator=(const HelpEngine&) = delete;

    /// Nothing when the file is no collection, or when collections can not be read.
    static std::unique_ptr<HelpEngine> open(const QString& collection);

    /// The addresses of all pages and other files of the collection.
    virtual QList<QUrl> pages() const = 0;
    /// A page's bytes; empty when it is not there.
    virtual QByteArray contents(const QUrl& page) const = 0;
};
