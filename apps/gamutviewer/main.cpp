// SPDX-License-Identifier: MIT
#include "display/assessment.h"
#include "display/messages.h"
#include "display/report.h"
#include "display/samples.h"
#include "drawing/picture.h"
#include "editing/openedfiles.h"
#include "editing/targetsession.h"
#include "program/commandline.h"
#include "program/interfacetranslations.h"
#include "program/platform.h"
#include "program/streaminput.h"
#include "window/followmenu.h"
#include "window/viewerwindow.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QScreen>

#include <cstdio>

namespace {

using namespace gamutviewer;

enum ExitStatus { Done = 0, Failed = 1, WrongInput = 2, DisplayFails = 3, VerdictNotKnown = 4, NeedsChoice = 5 };

int print(const QByteArray &text)
{
    const bool written = std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout) == std::size_t(text.size())
        && std::fflush(stdout) == 0;
    return written ? Done : Failed;
}

QByteArray verdictText(const Assessment &assessment)
{
    const auto line = [](Judgement judgement, const QString &text) {
        return QStringLiteral("%1: %2\n").arg(judgementName(judgement), text);
    };
    QString text = line(assessment.judgement(), assessment.headline());
    for (const AssessmentLine &ground : assessment.lines) {
        text += line(ground.judgement, ground.text);
    }
    return text.toUtf8();
}

ExitStatus statusOf(Judgement judgement)
{
    switch (judgement) {
    case Judgement::Pass:
        return Done;
    case Judgement::Fail:
        return DisplayFails;
    case Judgement::NotKnown:
        break;
    }
    return VerdictNotKnown;
}

ReportNotes notesOf(const OpenedFiles &opened)
{
    ReportNotes notes;
    for (const FileWarning &warning : opened.warnings) {
        notes.warnings.append(warning.message());
    }
    static_cast<FileNotes &>(notes) = opened.notes;
    return notes;
}

int write(const OpenedFiles &opened, const std::optional<Tolerances> &tolerances, const CommandLine &commandLine)
{
    const DisplayDescription &description = opened.description;
    const QString picture = commandLine.pictureFile();
    if (!picture.isEmpty()) {
        const Picture content = commandLine.picture(description, tolerances);
        const QString error
            = exportPicture(content, description.name, commandLine.extent(), commandLine.pictureFormat(), picture);
        if (!error.isEmpty()) {
            printError(QApplication::translate("main", "%1: cannot be written: %2").arg(picture, error));
            return Failed;
        }
        if (lacksRoomForKey(content, commandLine.extent().size)) {
            printError(QApplication::translate("main", "%1: has no room for the key").arg(picture));
        }
    }
    if (commandLine.wantsReport() && print(reportText(description, tolerances, notesOf(opened))) != Done) {
        printError(QApplication::translate("main", "the report cannot be written to standard output"));
        return Failed;
    }
    if (!commandLine.wantsCheck()) {
        return Done;
    }
    const Assessment assessment = assess(description, tolerances);
    if (!commandLine.wantsReport() && print(verdictText(assessment)) != Done) {
        printError(QApplication::translate("main", "the verdict cannot be written to standard output"));
        return Failed;
    }
    return statusOf(assessment.judgement());
}

int show(const OpenedFiles &opened, const std::optional<Tolerances> &tolerances, const CommandLine &commandLine,
    std::unique_ptr<FollowedInput> input)
{
    installInterfaceTranslations();
    ViewerWindow window;
    if (tolerances) {
        window.session()->setTolerances(tolerances);
    }
    if (!opened.needsChoice) {
        window.setOpened(opened);
    }
    if (commandLine.hasSize()) {
        window.resize(commandLine.extent().size.boundedTo(QApplication::primaryScreen()->availableSize()));
    }
    window.show();
    if (input) {
        window.followMenu()->follow(std::move(input), commandLine.measurementOptions());
    }
    if (opened.needsChoice) {
        // The user is asked what the list means, over the window.
        QMetaObject::invokeMethod(
            &window,
            [&] {
                if (!window.openPaths(
                        commandLine.files(), ViewerWindow::Manner::Open, commandLine.measurementOptions())) {
                    window.setOpened(opened);
                }
            },
            Qt::QueuedConnection);
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    // The error stream is for scripts and people; QT_LOGGING_RULES brings the toolkit's own warnings back.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    const bool canShow = choosePlatform(argc, argv);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("gamutviewer"));
    QApplication::setApplicationVersion(QStringLiteral(GAMUTVIEWER_VERSION));

    const CommandLine commandLine(QApplication::arguments());
    switch (commandLine.action()) {
    case CommandLine::Action::Help:
        return print(commandLine.helpText().toLocal8Bit());
    case CommandLine::Action::Version:
        return print(QStringLiteral("gamutviewer %1\n").arg(QApplication::applicationVersion()).toLocal8Bit());
    case CommandLine::Action::Refuse:
        printError(commandLine.error());
        return WrongInput;
    case CommandLine::Action::Show:
    case CommandLine::Action::Write:
        break;
    }

    const QStringList files = commandLine.files();
    const bool follows = !commandLine.followedFile().isEmpty();
    const Outcome<OpenedFiles> opened
        = openFiles(files.isEmpty() && !follows ? QStringList(sampleFile()) : files, commandLine.measurementOptions());
    if (!opened) {
        printError(opened.error());
        return WrongInput;
    }
    std::optional<Tolerances> tolerances;
    if (!commandLine.tolerancesFile().isEmpty()) {
        const Outcome<Tolerances> read = readTolerancesFile(commandLine.tolerancesFile());
        if (!read) {
            printError(read.problem().message(commandLine.tolerancesFile()));
            return WrongInput;
        }
        tolerances = *read;
    }
    if (commandLine.hasMeasurementOptions() && !opened->hasLists && !follows) {
        printError(QApplication::translate(
            "main", "--red, --green, --blue, --white, --cabinet, --unit and --decimal require a measurement list"));
        return WrongInput;
    }
    const QString noView = commandLine.whyNoView(opened->description);
    if (!noView.isEmpty()) {
        printError(noView);
        return WrongInput;
    }
    const bool isAsked = commandLine.action() == CommandLine::Action::Show && opened->needsChoice;
    for (const FileWarning &warning : opened->warnings) {
        if (!isAsked) { // or else after the answer
            printError(warning.message());
        }
    }
    if (commandLine.action() == CommandLine::Action::Write) {
        const int status = write(*opened, tolerances, commandLine);
        return status == Done && opened->needsChoice ? NeedsChoice : status;
    }
    if (!canShow) {
        printError(QApplication::translate(
            "main", "no display is available; use --render to write a picture or --report to print a report"));
        return Failed;
    }
    InputToFollow followed;
    if (follows) {
        followed = inputToFollow(commandLine.followedFile());
        if (!followed.input) {
            printError(followed.error);
            return WrongInput;
        }
    }
    return show(*opened, tolerances, commandLine, std::move(followed.input));
}
