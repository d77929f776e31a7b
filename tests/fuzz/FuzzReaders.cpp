// SPDX-License-Identifier: MIT
// Mutates project files of both dialects and definitions files, and reads them. Finds crashes, hangs and, under the
// sanitizers, bad memory. Usage: fuzz_readers [seconds [seed]]; the seed of a finding is printed before each round.
#include "app/AppRegistry.h"
#include "project/ProjectData.h"
#include "project/ProjectReader.h"

#include <QBuffer>
#include <QByteArrayList>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cstdio>

namespace {

const QByteArrayList seeds = {
    "VersionTag 1\nStartProjectMarker\nname=A\nsourceDir=src\noutputDir=out\nm=inherit string\na=default string\nc=x\n"
    "*project=ORVCPP\n*lastAnalysis=V\na.c\nEndContainedFilesMarker\nStartSubProjectMarker\nStartProjectMarker\n"
    "name=B\nsourceDir=b\noutputDir=\nm=inherit string\na=inherit string\nc=inherit string\nb.cpp\n"
    "EndContainedFilesMarker\nEndSubProjectMarker\nend\n",
    "old\nStartProjectMarker\nA\n-\nout\nsrc\na.c\n/b.c\nEndContainedFilesMarker\nm\na\nc\n*project=ORVC\n"
    "StartSubProjectMarker\nStartProjectMarker\nB\n-\no\ns\nEndContainedFilesMarker\nm\na\nc\nEndSubProjectMarker\n",
    "<s><projectCreator><name>N</name><exe>%ORVC%/x%R%a%b%</exe><exeargs> a  b</exeargs><inputData><inputType SEP=','"
    " COLUMNS='9'>GROUP</inputType><inputData><argDef PRE='p'>%A</argDef><defaultValue TYPE='C'>%HOME%</defaultValue>"
    "</inputData></inputData><LINUX><name>M</name></LINUX><HP><x/></HP></projectCreator><codingStandard name='a'>"
    "<description>&lt;</description></codingStandard><applicationPage><application name='x'><exe>y</exe></application>"
    "<columns>99999999999</columns></applicationPage></s>"};

const QByteArrayList words =
    QByteArray("StartProjectMarker\n|EndSubProjectMarker\n|StartSubProjectMarker\n|EndContainedFilesMarker\n|"
               "<inputData>|</inputData>|%R%%%|*lastAnalysis=|\xff\xfe|<!DOCTYPE a [<!ENTITY b 'c'>]>")
        .split('|');

void mutate(QByteArray& text, QRandomGenerator& random)
{
    const auto below = [&random](qsizetype limit) { return limit > 0 ? qsizetype(random.bounded(quint32(limit))) : 0; };
    for (qsizetype changes = 1 + below(8); changes > 0; --changes) {
        const qsizetype at = below(text.size() + 1);
        const QByteArray& word = words[below(words.size())];
        const QByteArrayList insertions = {word, word.repeated(below(300)), QByteArray(1, char(below(256))),
                                           text.mid(below(text.size()), below(200))};
        const qsizetype kind = below(insertions.size() + 2);
        if (kind < insertions.size()) {
            text.insert(at, insertions[kind]);
        } else {
            text.remove(at, kind == insertions.size() ? below(40) : text.size());
        }
    }
}

void readAll(const QByteArray& text)
{
    QByteArray copy = text;
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    ProjectData root;
    ProjectReader(buffer, root).read();
    root.fileCount();
    root.visitProjects([](const ProjectData& project) {
        project.resolvedAnalyserPersonality();
        return false;
    });
    KOVRASettingsFile().readDocument(text, {});
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir home;
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "TMPDIR"}) {
        qputenv(name, home.path().toLocal8Bit());
    }
    const QCoreApplication application(argc, argv);
    AppRegistry registry;
    appRegistry = &registry;
    const QDeadlineTimer end(argc > 1 ? QByteArray(argv[1]).toLongLong() * 1000 : 10000);
    const quint32 first = argc > 2 ? QByteArray(argv[2]).toUInt() : 1;
    quint32 round = first;
    for (; !end.hasExpired(); ++round) {
        if (round % 1000 == first % 1000) {
            std::fprintf(stderr, "rounds from seed %u\n", round);
        }
        QRandomGenerator random(round);
        QByteArray text = seeds[round % quint32(seeds.size())];
        mutate(text, random);
        readAll(text);
    }
    return round == first ? 1 : 0;
}
