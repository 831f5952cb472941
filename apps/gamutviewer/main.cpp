// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/assessment.h"
#include "display/messages.h"
#include "display/report.h"
#include "display/samples.h"
#include "display/textreport.h"
#include "drawing/picture.h"
#include "editing/openedfiles.h"
#include "editing/targetsession.h"
#include "editing/wallcommand.h"
#include "editing/wallcorrections.h"
#include "program/commandline.h"
#include "program/interfacetranslations.h"
#include "program/platform.h"
#include "program/streaminput.h"
#include "window/followmenu.h"
#include "window/viewerwindow.h"

#include <gamutfiles/filebytes.h>
#include <system/systemcalls_p.h>

#include <QApplication>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QScreen>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iterator>
#include <new>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

using namespace gamutviewer;

enum ExitStatus { Done = 0, Failed = 1, WrongInput = 2, DisplayFails = 3, VerdictNotKnown = 4, NeedsChoice = 5 };

//! On standard output; where that fails, \a failure is told with the reason.
ExitStatus print(const QByteArray &text, const QString &failure)
{
    errno = 0;
    if (std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout) == std::size_t(text.size())
        && std::fflush(stdout) == 0) {
        return Done;
    }
    printError(errno != 0 ? QStringLiteral("%1: %2").arg(failure, qt_error_string(errno)) : failure);
    return Failed;
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
        (warning.isRemark ? notes.remarks : notes.warnings).append(warning.message());
    }
    static_cast<FileNotes &>(notes) = opened.notes;
    notes.needsChoice = opened.needsChoice;
    notes.fit = opened.fit;
    return notes;
}

ExitStatus writeCorrections(const DisplayDescription &description, const CommandLine &commandLine)
{
    const QString fileName = commandLine.correctionsFile();
    const auto made = corrections(description, commandLine.measurementOptions().cabinet, fileName);
    if (!made) {
        printError(QStringLiteral("%1: %2").arg(fileName, made.error()));
        return WrongInput;
    }
    // Measurement lists and corrections have the same suffix: a slip must not cost the measurements.
    const QStringList read = commandLine.files() + QStringList{commandLine.wallFile(), commandLine.tolerancesFile()};
    for (const CorrectionsOutput &file : made->files) {
        for (const QString &input : read) {
            if (!input.isEmpty() && QFileInfo(input) == QFileInfo(file.fileName)) {
                printError(QApplication::translate("main", "%1: is read, and would be replaced by the corrections")
                               .arg(file.fileName));
                return WrongInput;
            }
        }
    }
    for (const CorrectionsOutput &file : made->files) {
        const QString error = gamutfiles::writeBytes(file.bytes, file.fileName);
        if (!error.isEmpty()) {
            printError(QApplication::translate("main", "%1: cannot be written: %2").arg(file.fileName, error));
            return Failed;
        }
    }
    for (const QString &note : made->notes) {
        printError(QStringLiteral("%1: %2").arg(fileName, note));
    }
    return Done;
}

/*!
 * \brief The file with the wall: that of --wall, or else, where no window asks what a list of several cabinets means,
 * the list among the files. A cabinet that was chosen is one display, unless corrections are wanted. What has been read
 * to find it is added to \a read.
 */
QString wallFile(const CommandLine &commandLine, FilesRead *read)
{
    const bool isOneDisplay
        = !commandLine.measurementOptions().cabinet.isEmpty() && commandLine.correctionsFile().isEmpty();
    return commandLine.wallFile().isEmpty() && commandLine.action() == CommandLine::Action::Write && !isOneDisplay
        ? wallAmong(commandLine.files(), commandLine.measurementOptions(), read)
        : commandLine.wallFile();
}

//! \a opened with the wall in \a wall and the target that the command line asks for, and with the \a warnings of
//! others.
Outcome<OpenedFiles> withRequests(const OpenedFiles &opened, const QString &wall, const CommandLine &commandLine,
    const QVector<FileWarning> &warnings)
{
    OpenedFiles result = opened;
    result.warnings += warnings;
    if (!wall.isEmpty()) {
        const auto withIt = withWall(result, wall, commandLine.measurementOptions());
        if (!withIt) {
            return withIt;
        }
        result = *withIt;
    }
    if (!commandLine.targetName().isEmpty()) {
        const auto described = withChosenTarget(result.description, commandLine.targetName());
        if (!described) {
            return Outcome<OpenedFiles>::failure(QStringLiteral("--target: ") + described.error());
        }
        result.description = *described;
    }
    if (commandLine.wantsFit()) {
        const auto fitted = withTargetFittedToWall(result.description);
        if (!fitted) {
            return Outcome<OpenedFiles>::failure(QStringLiteral("--fit: ") + fitted.error());
        }
        result.description = fitted->description;
        result.fit = fitted->fit;
        for (const QString &note : fitted->notes) {
            result.warnings.append({QStringLiteral("--fit"), {note, {}, 0, 0}, true});
        }
    }
    return result;
}

//! For a process that paints and ends: to return pictures to the system and have new ones cleared takes its time, too.
void keepFreedMemory()
{
#ifdef __GLIBC__
    constexpr int largest = 32 * 1024 * 1024; // block, that it takes
    mallopt(M_MMAP_THRESHOLD, largest);
    mallopt(M_TRIM_THRESHOLD, 4 * largest);
#endif
}

int write(const OpenedFiles &opened, const std::optional<Tolerances> &tolerances, const CommandLine &commandLine)
{
    const DisplayDescription &description = opened.description;
    const QString picture = commandLine.pictureFile();
    if (!picture.isEmpty()) {
        keepFreedMemory();
        const Picture content = laidOut(commandLine.picture(description, tolerances), commandLine.extent().size);
        const bool lacksRoom = lacksRoomForKey(content, commandLine.extent().size); // nothing can fail after the file
        const QString error
            = exportPicture(content, description.name, commandLine.extent(), commandLine.pictureFormat(), picture);
        if (!error.isEmpty()) {
            printError(QApplication::translate("main", "%1: cannot be written: %2").arg(picture, error));
            return Failed;
        }
        if (lacksRoom) {
            printError(QApplication::translate("main", "%1: has no room for the key").arg(picture));
        }
    }
    if (!commandLine.correctionsFile().isEmpty()) {
        const ExitStatus status = writeCorrections(description, commandLine);
        if (status != Done) {
            return status;
        }
    }
    const auto reportOf = [&] {
        return commandLine.wantsTextReport() ? textReport(description, tolerances, notesOf(opened))
                                             : reportText(description, tolerances, notesOf(opened));
    };
    if (commandLine.wantsReport()
        && print(reportOf(), QApplication::translate("main", "the report cannot be written to standard output"))
            != Done) {
        return Failed;
    }
    if (!commandLine.wantsCheck()) {
        return Done;
    }
    const Assessment assessment = assess(description, tolerances, opened.needsChoice);
    if (!commandLine.wantsReport()
        && print(verdictText(assessment),
               QApplication::translate("main", "the verdict cannot be written to standard output"))
            != Done) {
        return Failed;
    }
    return statusOf(assessment.judgement());
}

//! With \a change the user is asked what the measurement lists mean, over the window, and the answer is changed so.
int show(const OpenedFiles &opened, const std::optional<Tolerances> &tolerances, const CommandLine &commandLine,
    std::unique_ptr<FollowedInput> input, const ViewerWindow::OpenedChange &change)
{
    installInterfaceTranslations();
    ViewerWindow window;
    if (tolerances) {
        window.session()->setTolerances(tolerances);
    }
    if (!change) {
        window.setOpened(opened);
    }
    if (commandLine.hasSize()) {
        window.resize(commandLine.extent().size.boundedTo(QApplication::primaryScreen()->availableSize()));
    }
    window.show();
    if (input) {
        window.followMenu()->follow(std::move(input), commandLine.measurementOptions());
    }
    if (change) {
        QMetaObject::invokeMethod(
            &window, [&] { window.openWithQuestions(commandLine.files(), commandLine.measurementOptions(), change); },
            Qt::QueuedConnection);
    }
    return QApplication::exec();
}

//! The first of the arguments that is no text in the encoding of the system; its file cannot be named to the toolkit.
QString undecodable(int argc, const char *const *argv)
{
#ifdef Q_OS_UNIX
    for (int i = 1; i < argc; ++i) {
        const QString text = decodedArgument(argv[i]);
        if (text.toLocal8Bit() != argv[i]) {
            return text;
        }
    }
#else
    Q_UNUSED(argc)
    Q_UNUSED(argv)
#endif
    return {};
}

//! The arguments that are left when the toolkit has taken its own.
QStringList arguments(int argc, const char *const *argv)
{
#ifdef Q_OS_UNIX
    QStringList decoded;
    std::transform(argv, argv + argc, std::back_inserter(decoded), &decodedArgument);
    return decoded;
#else
    Q_UNUSED(argc)
    Q_UNUSED(argv)
    return QApplication::arguments();
#endif
}

// Without a word of the translators, who need memory.
void sayThatMemoryIsShort()
{
    std::fputs("gamutviewer: there is not enough memory\n", stderr);
}

//! For what cannot be caught: it was thrown where nothing may be, or through the event loop.
[[noreturn]] void endWithReason()
{
    try {
        if (std::current_exception()) {
            throw;
        }
    } catch (const std::bad_alloc &) {
        sayThatMemoryIsShort();
        std::_Exit(Failed);
    } catch (...) {
    }
    std::abort();
}

int run(int argc, char *argv[])
{
    // The error stream is for scripts and people; QT_LOGGING_RULES brings the toolkit's own warnings back.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    systemcalls::useBinaryStreams();
    const Application application = makeApplication(argc, argv);
    QApplication::setApplicationName(QStringLiteral("gamutviewer"));
    QApplication::setApplicationVersion(QStringLiteral(GAMUTVIEWER_VERSION));

    const QString unknown = undecodable(argc, argv);
    if (!unknown.isEmpty()) {
        printError(QApplication::translate(
            "main", "%1: is not text in the encoding of the system; use another name, or standard input, named -")
                       .arg(unknown));
        return WrongInput;
    }
    const CommandLine commandLine(arguments(argc, argv));
    switch (commandLine.action()) {
    case CommandLine::Action::Help:
        return print(commandLine.helpText().toLocal8Bit(),
            QApplication::translate("main", "the help cannot be written to standard output"));
    case CommandLine::Action::Version:
        return print(QStringLiteral("gamutviewer %1\n").arg(QApplication::applicationVersion()).toLocal8Bit(),
            QApplication::translate("main", "the version cannot be written to standard output"));
    case CommandLine::Action::Refuse:
        printError(commandLine.error());
        return WrongInput;
    case CommandLine::Action::Show:
    case CommandLine::Action::Write:
        break;
    }

    FilesRead filesRead;
    const QString wall = wallFile(commandLine, &filesRead);
    const bool follows = !commandLine.followedFile().isEmpty();
    const bool isSample = commandLine.files().isEmpty() && wall.isEmpty() && !follows;
    QStringList files = commandLine.files();
    if (commandLine.wallFile().isEmpty()) {
        files.removeAll(wall);
    }
    Outcome<OpenedFiles> opened
        = openFiles(isSample ? QStringList(sampleFile()) : files, commandLine.measurementOptions(), filesRead);
    if (!opened) {
        printError(opened.error());
        return WrongInput;
    }
    std::optional<Tolerances> tolerances;
    QVector<FileWarning> warnings;
    if (!commandLine.tolerancesFile().isEmpty()) {
        const Outcome<Tolerances> read = readTolerancesFile(commandLine.tolerancesFile());
        if (!read) {
            printError(read.problem().message(commandLine.tolerancesFile()));
            return WrongInput;
        }
        tolerances = *read;
        for (const Problem &warning : read.warnings()) {
            warnings.append({commandLine.tolerancesFile(), warning});
        }
    }
    opened = withRequests(*opened, wall, commandLine, warnings);
    if (!opened) {
        printError(opened.error());
        return WrongInput;
    }
    if (commandLine.hasMeasurementOptions() && !opened->hasLists && opened->description.wall.cabinets.empty()
        && !follows) {
        printError(QApplication::translate(
            "main", "--red, --green, --blue, --white, --cabinet, --unit and --decimal require a measurement list"));
        return WrongInput;
    }
    const QString noView = commandLine.whyNoView(opened->description);
    if (!noView.isEmpty()) {
        printError(noView);
        return WrongInput;
    }
    const bool isAsked
        = commandLine.action() == CommandLine::Action::Show && opened->needsChoice && ViewerWindow::canAskAbout(files);
    for (const FileWarning &warning : opened->warnings) {
        if (!isAsked) { // or else after the answer
            printError(warning.message());
        }
    }
    if (commandLine.action() == CommandLine::Action::Write) {
        const int status = write(*opened, tolerances, commandLine);
        const bool isWritten = status == Done || status == DisplayFails || status == VerdictNotKnown;
        return isWritten && opened->needsChoice ? NeedsChoice : status;
    }
    if (!application.canShow) {
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
    const auto change = [&](const OpenedFiles &answered) {
        return withRequests(answered, commandLine.wallFile(), commandLine, warnings);
    };
    return show(*opened, tolerances, commandLine, std::move(followed.input),
        isAsked ? ViewerWindow::OpenedChange(change) : ViewerWindow::OpenedChange());
}

} // namespace

int main(int argc, char *argv[])
{
    std::set_terminate(&endWithReason);
    try {
        return run(argc, argv);
    } catch (const std::bad_alloc &) {
        sayThatMemoryIsShort();
        return Failed;
    }
}
