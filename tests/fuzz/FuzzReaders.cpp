// SPDX-License-Identifier: MIT
// Mutates project files of both dialects and definitions files, and reads them. Finds crashes, hangs and, under the
// sanitizers, bad memory. Usage: fuzz_readers [seconds [seed]]; the seed of a finding is printed before each round.
#include "app/AppRegistry.h"
#include "project/ProjectData.h"
#include "project/ProjectReader.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <array>
#include <cstdio>

namespace {

const std::array<QByteArray, 3> seeds = {
    "VersionTag 1\nStartProjectMarker\nname=A\nsourceDir=src\noutputDir=out\nm=inherit string\na=default string\nc=x\n"
    "*project=ORVCPP\n*lastAnalysis=V\na.c\nEndContainedFilesMarker\nStartSubProjectMarker\nStartProjectMarker\nname="
    "B\n"
    "sourceDir=b\noutputDir=\nm=inherit string\na=inherit string\nc=inherit string\nb.cpp\nEndContainedFilesMarker\n"
    "EndSubProjectMarker\nend\n",
    "old\nStartProjectMarker\nA\n-\nout\nsrc\na.c\n/b.c\nEndContainedFilesMarker\nm\na\nc\n*project=ORVC\n"
    "StartSubProjectMarker\nStartProjectMarker\nB\n-"
    "\no\ns\nEndContainedFilesMarker\nm\na\nc\nEndSubProjectMarker\nend\n",
    "<s><projectCreator><name>N</name><exe>%ORVC%/x%R%a%b%</exe><exeargs> a  b</exeargs><inputData><inputType SEP=','"
    " COLUMNS='9'>GROUP</inputType><inputData><argDef PRE='p'>%A</argDef><defaultValue TYPE='C'>%HOME%</defaultValue>"
    "</inputData></inputData><LINUX><name>M</name></LINUX><HP><x/></HP></projectCreator><codingStandard name='a'>"
    "<description>&lt;</description></codingStandard><applicationPage><application name='x'><exe>y</exe></application>"
    "<columns>99999999999</columns></applicationPage></s>"};

const std::array<QByteArray, 10> words = {"StartProjectMarker\n",
                                          "EndSubProjectMarker\n",
                                          "StartSubProjectMarker\n",
                                          "EndContainedFilesMarker\n",
                                          "<inputData>",
                                          "</inputData>",
                                          "%R%%%",
                                          "*lastAnalysis=",
                                          "\xff\xfe",
                                          "<!DOCTYPE a [<!ENTITY b 'c'>]>"};

void mutate(QByteArray& text, QRandomGenerator& random)
{
    const auto below = [&random](qsizetype limit) { return limit > 0 ? qsizetype(random.bounded(quint32(limit))) : 0; };
    for (qsizetype changes = 1 + below(8); changes > 0; --changes) {
        const qsizetype at = below(text.size() + 1);
        switch (random.bounded(6)) {
        case 0:
            text.remove(at, below(40));
            break;
        case 1:
            text.insert(at, words[size_t(below(qsizetype(words.size())))]);
            break;
        case 2:
            text.insert(at, char(random.bounded(256)));
            break;
        case 3:
            text.insert(at, text.mid(below(text.size()), below(200)));
            break;
        case 4:
            text.insert(at, words[size_t(below(qsizetype(words.size())))].repeated(below(300)));
            break;
        default:
            text.truncate(at);
            break;
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
    const qint64 seconds = argc > 1 ? QByteArray(argv[1]).toLongLong() : 10;
    const quint32 first = argc > 2 ? QByteArray(argv[2]).toUInt() : 1;
    QElapsedTimer clock;
    clock.start();
    quint32 round = first;
    for (; clock.elapsed() < seconds * 1000; ++round) {
        if (round % 1000 == first % 1000) {
            std::printf("rounds from seed %u\n", round);
            std::fflush(stdout);
        }
        QRandomGenerator random(round);
        QByteArray text = seeds[round % seeds.size()];
        mutate(text, random);
        readAll(text);
    }
    std::printf("%u mutated files read in %lld s\n", round - first, static_cast<long long>(clock.elapsed() / 1000));
    return round == first ? 1 : 0;
}
