// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppRegistry.h"
#include "Installation.h"
#include "launchers/PageData.h"
#include "launchers/RunAppData.h"

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextBrowser>

/// A suite with a launcher page, on a project that does not exist.
struct Launchers : Installation
{
    /// Declares the page and builds its buttons.
    PageData& define(const QByteArray& applications)
    {
        Installation::define("<applicationPage>" + applications + "</applicationPage>");
        start().values.useMessageViewerMessages = false;
        page().SetProjectFile(path(QStringLiteral("work/p.prj")));
        holder = std::make_unique<QWidget>();
        page().BuildButtons(new QGridLayout(holder.get()));
        return page();
    }

    static PageData& page() { return *appRegistry->definitions.applicationPages.at(0); }

    /// Counted from 1.
    static RunAppData& tool(int number) { return *page().applications.at(std::size_t(number - 1)); }

    QByteArray application(int number, const QByteArray& script, const QByteArray& more = {}) const
    {
        const QString name = QStringLiteral("tool%1").arg(number);
        return "<application name='Tool\\n" + QByteArray::number(number) + "'><exe>" +
               writeChild(name, script).toUtf8() + "</exe>" + more + "</application>";
    }

    /// What the first window of a tool shows.
    static QString shown()
    {
        const QDialog* window = appRegistry->openDialogs.value(0);
        if (!window) {
            return {};
        }
        const auto* text = window->findChild<QPlainTextEdit*>();
        const auto* browser = window->findChild<QTextBrowser*>();
        return text ? text->toPlainText() : browser ? browser->toPlainText() : window->findChild<QLabel*>()->text();
    }

    std::unique_ptr<QWidget> holder;
};
