#pragma once

#include "AVConvertViewController.h"
#include "DMGViewController.h"
#include "ISOViewController.h"
#include "MiscTool.h"
#include "SynthesisViewController.h"
#include "UNZIPViewController.h"
#include "ZIPViewController.h"

#include <QMetaType>

#include <functional>
#include <utility>
#include <vector>

struct FormField {
    const char *name;
    QString value;
    QString refusal = {}; ///< The message when it is the first that is empty; none: it may be.
    bool isLockedByARun = false;
};

/// A button that opens a chooser, what is typed there, and what the form holds then.
struct Choice {
    const char *button;
    QString typed;
    QString chosen;
};

/// What is particular to a page. In texts "@" stands for a folder that is new for each run.
struct PageContract {
    std::function<QWidget *(JobList &)> makePage = {};
    const char *program = {};
    QList<FormField> form = {}; ///< In the order in which it is checked.
    QList<Choice> choices = {}; ///< For the first and the last field.
    QStringList buttons = {}; ///< Off while it runs; the last one starts it.
    QString arguments = {}; ///< With "|" between them.
    QString success = {};
    QString failure = {};
    QString made = {}; ///< Empty: the page offers none.
    const char *busySign = "progressIndicator"; ///< None: a page without one.
    const char *longest = "outputField"; ///< Becomes a single argument.
    bool isIdleBehindTheBox = false;
    bool keepsForm = true;
    bool survivesNoProgram = true; ///< Else it stays busy, on purpose.
};

template <typename Page>
QWidget *makePage(JobList &jobs)
{
    return new Page(jobs);
}

Q_DECLARE_METATYPE(PageContract)

/// By the pages' names.
inline std::vector<std::pair<const char *, PageContract>> pageContracts()
{
    using namespace Qt::StringLiterals;
    std::vector<std::pair<const char *, PageContract>> all;
    const auto row = [&all](const char *name, const PageContract &contract) {
        all.emplace_back(name, contract);
    };
    const QStringList buttons{u"srcSelectButton"_s, u"outputSelectButton"_s, u"clearButton"_s,
                              u"generateButton"_s};
    const Choice source{"srcSelectButton", u"@"_s, u"@"_s};
    row("zip",
        {.makePage = makePage<ZIPViewController>,
         .program = "zip",
         .form = {{"srcFolderField", u"@"_s, u"[SrcFolderNull]"_s},
                  {"outputField", u"@/-made <b>.zip"_s, u"[ZipFileNameNull]"_s, true}},
         .choices = {source, {"outputButton", u"@/a"_s, u"@/a.zip"_s}},
         .buttons = {u"srcSelectButton"_s, u"ratioPopUp"_s, u"outputButton"_s, u"clearButton"_s,
                     u"generateButton"_s},
         .arguments = u"-r|"_s + MiscTool::getAppDocumentFolder() + u"/-made <b>.zip|.|-1|-q"_s,
         .success = u"[ZipSuc]"_s,
         .failure = u"[ZipFail]"_s,
         .made = u"@/-made <b>.zip"_s,
         .survivesNoProgram = false});
    row("unzip",
        {.makePage = makePage<UNZIPViewController>,
         .program = "unzip",
         .form = {{"srcFolderField", u"@/photos.zip"_s, u"[SrcFolderNull]"_s},
                  {"outputField", u"@/new/below"_s}},
         .choices = {{"srcSelectButton", u"@/photos.zip"_s, u"@/photos.zip"_s},
                     {"outputSelectButton", u"@"_s, u"@"_s}},
         .buttons = buttons,
         .arguments = u"-q|@/photos.zip|-d|@/new/below/photos"_s,
         .success = u"[UnzipSuc]"_s,
         .failure = u"[UnzipFail]"_s,
         .longest = "srcFolderField",
         .survivesNoProgram = false});
    const QString image = u"-o|/no such folder/-image|-default-volume-name|-name|-ov|-quiet|@"_s;
    PageContract disk{.program = "hdiutil",
                      .form = {{"srcFolderField", u"@"_s, u"[SrcFolderNull]"_s},
                               {"volumnNameField", u"-name"_s, u"[VolumeNameNull]"_s, true},
                               {"outputField", u"/no such folder/-image"_s, u"[OutputNull]"_s}},
                      .buttons = buttons,
                      .success = u"GenerateImageSuc"_s, // not looked up
                      .failure = u"GenerateImageFail"_s,
                      .made = u"/no such folder/-image"_s,
                      .isIdleBehindTheBox = true};
    for (const bool isDmg : {true, false}) {
        const char *suffix = isDmg ? "dmg" : "iso";
        disk.makePage = isDmg ? makePage<DMGViewController> : makePage<ISOViewController>;
        disk.arguments = (isDmg ? u"makehybrid|-hfs|"_s : u"makehybrid|"_s) + image;
        disk.choices = {source,
                        {"outputSelectButton", u"@/a"_s, u"@/a."_s + QLatin1String(suffix)}};
        row(suffix, disk);
    }
    row("video",
        {.makePage = makePage<AVConvertViewController>,
         .program = "avconvert",
         .form = {{"sourceField", u"@/-video.avi"_s, u"[Source file cannot be null.]"_s},
                  {"outputField", u"@/-made.m4v"_s, u"[Output file cannot be null.]"_s}},
         .choices = {{"sourceSelectButton", u"@/holiday.MPEG"_s, u"@/holiday.MPEG"_s},
                     {"outputSelectButton", u"@/a"_s, u"@/a.m4v"_s}},
         .buttons = {u"sourceSelectButton"_s, u"outputFormatPopUp"_s, u"outputSelectButton"_s,
                     u"convertButton"_s},
         .arguments = u"--preset|Preset3840x2160|--source|@/-video.avi|--output|@/-made.m4v|-q"_s,
         .success = u"[Convert is completed.]"_s,
         .failure = u"[Convert is failed.]"_s,
         .made = u"@/-made.m4v"_s,
         .busySign = "progressBox",
         .keepsForm = false});
    row("speech",
        {.makePage = makePage<SynthesisViewController>,
         .program = "say",
         .form = {{"textField", u"--output-file=/x"_s, {}, true}},
         .buttons = {u"voicePopUp"_s, u"testButton"_s, u"rateSlider"_s, u"resetButton"_s,
                     u"readButton"_s, u"saveButton"_s},
         .arguments = u"--output-file=/x|--voice=English (America)|--rate=175|--output-file="
                      "@/-made.aiff"_s,
         .success = u"[SaveSuc]"_s,
         .failure = u"[SaveFail]"_s,
         .made = u"@/-made.aiff"_s,
         .busySign = nullptr,
         .longest = "textField"});
    return all;
}
