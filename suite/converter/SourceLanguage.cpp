// SPDX-License-Identifier: MIT
#include "SourceLanguage.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

using Languages = QHash<QString, SourceLanguage>;

void add(Languages& languages, const QString& names, SourceLanguage language)
{
    for (const QString& name : names.split(u' ')) {
        languages.insert(name, language);
    }
}

// In lower case; "C" and "H" and "M" are looked at before.
const Languages& endings()
{
    static const Languages all = [] {
        Languages result;
        add(result, u"c i"_s, SourceLanguage::C);
        add(result, u"cpp cc cxx c++ cp cppm ixx mpp mxx cxxm c++m ccm ii"_s, SourceLanguage::Cpp);
        add(result, u"h hh hp hpp hxx h++ tcc tpp ipp inl inc def pch gch"_s, SourceLanguage::Header);
        add(result, u"s sx asm nasm masm"_s, SourceLanguage::Assembler);
        add(result, u"rc res mc"_s, SourceLanguage::Resource);
        add(result, u"cu hip"_s, SourceLanguage::Cuda);
        add(result, u"m mm"_s, SourceLanguage::ObjectiveC);
        add(result, u"f for f77 f90 f95 f03 f08 fpp ftn swift rs go java ispc hlsl metal cl cs d pas vala idl"_s,
            SourceLanguage::Other);
        add(result, u"o obj a lib so dll"_s, SourceLanguage::Other);
        return result;
    }();
    return all;
}

const Languages& names()
{
    static const Languages all = [] {
        Languages result;
        add(result, u"c cpp-output"_s, SourceLanguage::C);
        add(result, u"c++ c++-cpp-output c++-module"_s, SourceLanguage::Cpp);
        add(result, u"c-header c++-header c++-system-header c++-user-header c++-header-unit-header cl-header"_s,
            SourceLanguage::Header);
        add(result, u"assembler assembler-with-cpp"_s, SourceLanguage::Assembler);
        add(result, u"cuda hip cuda-cpp-output"_s, SourceLanguage::Cuda);
        add(result,
            u"objective-c objective-c++ objc-cpp-output objective-c-header objective-c++-header "
            "objective-c-cpp-output objective-c++-cpp-output"_s,
            SourceLanguage::ObjectiveC);
        add(result, u"none"_s, SourceLanguage::Unknown);
        return result;
    }();
    return all;
}

} // namespace

bool isSource(SourceLanguage language)
{
    return language == SourceLanguage::C || language == SourceLanguage::Cpp || language == SourceLanguage::Unknown;
}

SourceLanguage languageOfFile(QStringView fileName, bool windows)
{
    const qsizetype dot = fileName.lastIndexOf(u'.');
    const QStringView ending = dot < 0 ? QStringView() : fileName.sliced(dot + 1);
    if (ending.isEmpty()) {
        return SourceLanguage::Unknown;
    }
    if (ending == "C"_L1 && !windows) {
        return SourceLanguage::Cpp;
    }
    return endings().value(ending.toString().toLower(), SourceLanguage::Unknown);
}

SourceLanguage languageOfName(QStringView name)
{
    return names().value(name.toString(), SourceLanguage::Other);
}

QString nameOf(SourceLanguage language)
{
    switch (language) {
    case SourceLanguage::C:
        return u"C source"_s;
    case SourceLanguage::Cpp:
        return u"C++ source"_s;
    case SourceLanguage::Header:
        return u"header"_s;
    case SourceLanguage::Assembler:
        return u"assembler source"_s;
    case SourceLanguage::Resource:
        return u"resource"_s;
    case SourceLanguage::Cuda:
        return u"CUDA source"_s;
    case SourceLanguage::ObjectiveC:
        return u"Objective-C source"_s;
    case SourceLanguage::Unknown:
    case SourceLanguage::Other:
        break;
    }
    return u"other file"_s;
}
