// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_COMMANDLINE_H
#define GAMUTVIEWER_COMMANDLINE_H

#include "display/gamutfiles.h"
#include "drawing/picture.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace gamutviewer {

/*! \brief What the program was asked to do. */
class CommandLine {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::CommandLine)

public:
    enum class Action {
        Show,
        Write, //!< a picture, a report, a verdict or several of them, and no window
        Help,
        Version,
        Refuse
    };

    /*! \brief Reads \a arguments, the first of which is the program itself. There need be no application yet. */
    explicit CommandLine(const QStringList &arguments);

    Action action() const { return m_action; }
    /*! \brief Why the arguments were refused. */
    QString error() const { return m_error; }
    /*! \brief The files to open; empty for the sample. */
    QStringList files() const { return m_files; }
    /*! \brief What is known of the measurement lists among the files. */
    const MeasurementOptions &measurementOptions() const { return m_measurementOptions; }
    /*! \brief Whether anything is said of measurement lists, of which there must be one then. */
    bool hasMeasurementOptions() const { return m_hasMeasurementOptions; }
    /*! \brief Where Write writes the picture to; empty for no picture. */
    QString pictureFile() const { return m_pictureFile; }
    PictureFormat pictureFormat() const { return m_pictureFormat; }
    /*! \brief Of the picture, or of the window. */
    const PictureExtent &extent() const { return m_extent; }
    /*!
     * \brief Why the part of the diagram that was asked for is not there in \a description, for people; empty when it
     * is, and without a picture.
     */
    QString whyNoView(const DisplayDescription &description) const;
    /*! \brief What Write writes of \a description. */
    Picture picture(const DisplayDescription &description, const std::optional<Tolerances> &tolerances) const;
    /*! \brief Whether a size was asked for; otherwise a window may have the one that it had. */
    bool hasSize() const { return m_hasSize; }
    /*! \brief Whether Write writes the report to the standard output. */
    bool wantsReport() const { return m_wantsReport; }
    /*! \brief Whether that is the report for people; otherwise it is JSON. */
    bool wantsTextReport() const { return m_wantsTextReport; }
    /*! \brief Whether Write judges the display, and the exit status is to tell the verdict. */
    bool wantsCheck() const { return m_wantsCheck; }
    /*! \brief The file with the wall; empty for none but that of the files. */
    QString wallFile() const { return m_wallFile; }
    /*! \brief The name of the gamut that is to be the target; empty for that of the files. */
    QString targetName() const { return m_targetName; }
    /*! \brief Whether the target is to be fitted to the wall. */
    bool wantsFit() const { return m_wantsFit; }
    /*! \brief Where Write writes the corrections to; empty for none. */
    QString correctionsFile() const { return m_correctionsFile; }
    /*! \brief The file of tolerances; empty for none. */
    QString tolerancesFile() const { return m_tolerancesFile; }
    /*! \brief What the window is to follow; empty for nothing. */
    QString followedFile() const { return m_followedFile; }
    /*! \brief Needs the application to exist. */
    QString helpText() const { return m_parser.helpText(); }
    /*! \brief Whether a window is wanted; also known of refused arguments. */
    bool needsDisplay() const { return m_needsDisplay; }

    /*! \brief Parts of Qt, each with those before it. */
    enum class Toolkit { Core, Painting, Widgets };
    /*! \brief What is needed for action(); of refused arguments Widgets, as some may be for Qt, which takes them. */
    Toolkit toolkit() const;

private:
    enum class Part { All, Target, White };

    void refuse(const QString &error);
    void readFiles();
    void readPicture(const QString &fileName);
    void readSize(const QString &text);
    void readRatio(const QString &text);
    void readDiagram(const QString &name);
    void readPart(const QString &name);
    void readLayers(const QString &list);
    void readMeasurementOptions();
    void readReport(const QString &format);
    void readFollowed(const QStringList &fileNames);
    void readCorrections(const QString &fileName);
    void checkStandardInput();

    QCommandLineParser m_parser;
    Action m_action = Action::Show;
    QString m_error;
    QStringList m_files;
    MeasurementOptions m_measurementOptions;
    bool m_hasMeasurementOptions = false;
    QString m_pictureFile;
    PictureFormat m_pictureFormat = PictureFormat::Png;
    PictureExtent m_extent;
    Model::Diagram m_diagram = Model::Diagram::Cie1931;
    bool m_isLibraryChart = false;
    bool m_isWall = false;
    Part m_part = Part::All;
    ceiechart::ShownLayers m_layers = ceiechart::allDiagramLayers;
    bool m_hasKey = true;
    bool m_hasSize = false;
    bool m_wantsReport = false;
    bool m_wantsTextReport = false;
    bool m_wantsCheck = false;
    QString m_wallFile;
    QString m_targetName;
    bool m_wantsFit = false;
    QString m_correctionsFile;
    QString m_tolerancesFile;
    QString m_followedFile;
    bool m_needsDisplay = true;
};

} // namespace gamutviewer

#endif
