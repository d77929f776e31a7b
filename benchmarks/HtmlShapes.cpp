// SPDX-License-Identifier: MIT
// The longest time the window does not answer while html is shown: of each shape as much as is still laid out here, and
// 1 MB, which is not.
#include "app/AppRegistry.h"
#include "dialogs/DisplayDialog.h"
#include "dialogs/HtmlShape.h"
#include "Sandbox.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 limitMs = 50;

struct Shape
{
    const char* name;
    std::function<QString(qsizetype)> make;
};

// The beginning and as many pieces as make up the size.
std::function<QString(qsizetype)> pieces(const QString& beginning, const QString& piece, const QString& end = {})
{
    return
        [=](qsizetype size) { return beginning + piece.repeated(std::max<qsizetype>(size / piece.size(), 1)) + end; };
}

std::vector<Shape> shapes()
{
    return {
        {"paragraphs", pieces({}, u"<p>some words of a report here</p>\n"_s)},
        {"words", pieces({}, u"word and more "_s)},
        {"short paragraphs", pieces({}, u"<p>w "_s)},
        {"line breaks", pieces({}, u"a b<br>"_s)},
        {"table rows", pieces(u"<table>"_s, u"<tr><td>1</td></tr>"_s)},
        {"table columns", pieces(u"<table><tr>"_s, u"<td>1</td>"_s)},
        {"table in table", pieces(u"<table><tr><td>"_s, u"<table><tr><td>1</td></tr></table>"_s)},
        {"deep tables", pieces({}, u"<table><tr><td>"_s)},
        {"no blank", pieces({}, u"x"_s)},
        {"no blank, tags", pieces({}, u"<b>x</b>y"_s)},
        {"deep blocks", pieces({}, u"<div>"_s)},
        {"deep pieces", pieces({}, u"<span>"_s)},
        {"deep lists", pieces({}, u"<ul><li>"_s)},
        {"list", pieces(u"<ul>"_s, u"<li>item <b>bold</b>"_s)},
        {"code", pieces(u"<pre>"_s, u"int main() { return 0; }\n"_s)},
        {"colours", pieces({}, u"<span style='color:red'>a </span>"_s)},
        {"entities", pieces({}, u"&lt; "_s)},
        {"no-break spaces", pieces({}, u"&nbsp;"_s)},
        {"left angles", pieces({}, u"< "_s)},
        {"rules", pieces(u"<style>p{color:red} p b{color:blue} .a{}</style>"_s, u"<p class=a>w <b>x</b> "_s)},
    };
}

qint64 longestStall(AppRegistry& registry, const QString& html)
{
    DisplayDialog dialog(registry, u"Report"_s, DisplayDialog::Html, 600, 600);
    dialog.show();
    QApplication::processEvents();
    QElapsedTimer clock;
    clock.start();
    dialog.SetText(html);
    qint64 longest = clock.elapsed();
    qint64 last = longest;
    QTimer pulse;
    QObject::connect(&pulse, &QTimer::timeout, [&] {
        longest = std::max(longest, clock.elapsed() - last);
        last = clock.elapsed();
    });
    pulse.start(1);
    QTimer::singleShot(300, qApp, &QCoreApplication::quit);
    QApplication::exec();
    return longest;
}

// The largest size that is still laid out.
qsizetype largestQuick(const Shape& shape)
{
    qsizetype quick = 0;
    for (qsizetype step = 1024LL * 1024; step >= 64; step /= 2) {
        quick += HtmlShape::of(shape.make(quick + step)).isQuick() ? step : 0;
    }
    return quick;
}

} // namespace

int main(int argc, char** argv)
{
    const Sandbox sandbox;
    QApplication application(argc, argv);
    AppRegistry registry;
    appRegistry = &registry;
    longestStall(registry, u"<p>first <b>use</b> of fonts"_s);
    qint64 worst = 0;
    for (const Shape& shape : shapes()) {
        const qsizetype quick = largestQuick(shape);
        const qint64 laidOut = longestStall(registry, shape.make(quick));
        const qint64 offered = longestStall(registry, shape.make(1024LL * 1024));
        worst = std::max({worst, laidOut, offered});
        std::fprintf(stderr, "%-18s %7lld bytes: %3lld ms, 1 MB: %3lld ms\n", shape.name, static_cast<long long>(quick),
                     static_cast<long long>(laidOut), static_cast<long long>(offered));
    }
    std::printf("longest stall while showing html of %zu shapes: %lld ms (at most %lld) %s\n", shapes().size(),
                static_cast<long long>(worst), static_cast<long long>(limitMs), worst <= limitMs ? "ok" : "MISSED");
    return worst <= limitMs ? 0 : 1;
}
