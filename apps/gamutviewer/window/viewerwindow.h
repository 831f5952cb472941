// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_VIEWERWINDOW_H
#define GAMUTVIEWER_VIEWERWINDOW_H

#include "drawing/picture.h"
#include "editing/document.h"
#include "editing/openedfiles.h"

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <optional>

class QAction;
class QLabel;
class QMenu;
class QSplitter;
class QTabWidget;

namespace gamutviewer {

class ComparePage;
class DiagramPage;
class FollowMenu;
class GamutsDialog;
class HintLabel;
class LibraryPage;
class Page;
class SidePanel;
class TargetSession;
class TolerancesMenu;
class WallPage;
class WarningBar;

/*! \brief The program's window: pages and a panel over one document. */
class ViewerWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit ViewerWindow(QWidget *parent = nullptr);
    ~ViewerWindow() override;

    /*! \brief How files are opened. */
    enum class Manner {
        Open, //!< instead of nothing and of the untouched sample; otherwise the user is asked
        Add //!< to what is open; the user chooses the parts
    };

    /*!
     * \brief Shows \a description. Saving writes to \a fileName unless it is empty or the sample.
     */
    void setDescription(const DisplayDescription &description, const QString &fileName);
    /*!
     * \brief Shows what was opened, with its warnings; its files are the most recent ones.
     *
     * What was added to a display description is a step of the history, for the file does not have it.
     */
    void setOpened(const OpenedFiles &opened);

    /*!
     * \brief Opens files of any format that the program reads; false, with a message, when that fails, and then what
     * was open stays.
     *
     * Asks what becomes of them, and before changes would be lost; also what a measurement list means, where \a options
     * and the list leave it open.
     */
    bool openPaths(const QStringList &fileNames, Manner manner = Manner::Open,
        const MeasurementOptions &options = MeasurementOptions());
    bool openPath(const QString &fileName) { return openPaths({fileName}); }
    /*! \brief Whether what a measurement list means can be asked: the files can be read once more. */
    static bool canAskAbout(const QStringList &fileNames);
    /*! \brief What is to be done with files before they are shown. */
    using OpenedChange = std::function<Outcome<OpenedFiles>(const OpenedFiles &)>;
    /*!
     * \brief Opens files at the start, when nothing is open. Asks what measurement lists mean; \a change is made with
     * the answers. The window stays empty if the user cancels or, with a message, if anything fails.
     */
    void openWithQuestions(const QStringList &fileNames, const MeasurementOptions &options, const OpenedChange &change);
    /*!
     * \brief Opens the measurement list \a fileName as openPaths() does, but as a wall without a question, and shows
     * the page of walls.
     */
    bool openWall(const QString &fileName);
    /*!
     * \brief Asks what the measurement list \a fileName, which has been opened, means, and what becomes of it then;
     * false if the user cancels.
     */
    bool readAgain(const QString &fileName);
    /*! \brief An empty description instead of what is open; false when the user would lose changes by it. */
    bool closeDocument();
    /*! \brief Shows the list of gamuts, which stays open beside the window. */
    GamutsDialog *showGamuts();
    /*! \brief Writes the description; false, with a message, when that fails. */
    bool saveTo(const QString &fileName);
    /*! \brief Writes \a picture in the format of \a fileName's suffix; false, with a message, when that fails. */
    bool exportTo(const QString &fileName, const Picture &picture, const PictureExtent &extent);
    /*! \brief Writes the corrections of the wall to \a fileName, CSV or JSON; false, with a message, when that fails.
     */
    bool exportCorrectionsTo(const QString &fileName);
    /*! \brief Copies the picture of the page to the clipboard. */
    void copyPicture();
    /*! \brief The page that is shown. */
    Page *currentPage() const;

    Document *document() { return &m_document; }
    TargetSession *session() const { return m_session; }
    QTabWidget *pages() const { return m_pages; }
    DiagramPage *diagramPage() const { return m_diagramPage; }
    ComparePage *comparePage() const { return m_comparePage; }
    WallPage *wallPage() const { return m_wallPage; }
    LibraryPage *libraryPage() const { return m_libraryPage; }
    SidePanel *panel() const { return m_panel; }
    TolerancesMenu *tolerancesMenu() const { return m_tolerancesMenu; }
    FollowMenu *followMenu() const { return m_followMenu; }
    QLabel *readout() const { return m_readout; }
    WarningBar *warnings() const { return m_warnings; }
    /*! \brief What the open display is called in questions: its name, or else that of its file. */
    QString shownName() const;

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    /*! \brief Takes files that are dropped anywhere on the window, also on what would take them for a text. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildPages();
    void buildMenus();
    void buildFileMenu();
    void buildEditMenu();
    void buildViewMenu();
    void buildWallMenu();
    void buildHelpMenu();
    void buildStatusBar();
    void addPage(Page *page);

    void newDocument();
    void openByDialog(Manner manner);
    std::optional<QVector<ReadFile>> readPaths(const QStringList &fileNames, const MeasurementOptions &options);
    void showWallOf(const QVector<ReadFile> &files);
    bool openRead(const QVector<ReadFile> &files, Manner manner);
    bool openAlone(const QVector<ReadFile> &files);
    bool openByQuestion(const QVector<ReadFile> &files, Manner manner);
    static QString stepName(const QStringList &added);
    void addFiles(const QVector<ReadFile> &files);
    /*! \brief Whether there is nothing that a file must not take the place of. */
    bool givesWay() const;
    QString proposedPath(const QString &suffix) const;
    bool save();
    bool saveAs();
    void exportByDialog();
    void exportCorrectionsByDialog();
    void fillRecentMenu();
    void fillListMenu();
    QStringList listsToReadAgain() const;
    void undo();
    void redo();
    void about();
    void showKeys();

    /*! \brief Whether changes may be lost: they have been saved, or the user does not want them. */
    bool mayLoseChanges();
    bool mayClose();
    void refreshTitle();
    void showReadout(const QPointF &xy, int decimals);
    void setReadout(const QString &text);
    void followPage();
    void warn(const QString &text);
    void addWarnings(const QVector<FileWarning> &warnings);
    //! Shows \a message in the status bar for some seconds.
    void showBriefly(const QString &message);
    /*! \brief Makes the panel as wide as what it shows, until the user has chosen its width. */
    void fitPanel();
    void restoreSettings();
    void saveSettings() const;

    Document m_document;
    QString m_shownFile; // what was opened, for the title
    bool m_isSample = false;
    TargetSession *m_session;
    bool m_panelWidthIsChosen = false;
    QSplitter *m_splitter;
    QTabWidget *m_pages;
    DiagramPage *m_diagramPage;
    ComparePage *m_comparePage;
    WallPage *m_wallPage;
    LibraryPage *m_libraryPage;
    SidePanel *m_panel;
    QLabel *m_readout;
    HintLabel *m_hints;
    WarningBar *m_warnings;
    QMenu *m_recentMenu;
    QMenu *m_listMenu;
    TolerancesMenu *m_tolerancesMenu;
    FollowMenu *m_followMenu;
    QAction *m_undo;
    QAction *m_redo;
    QPointer<GamutsDialog> m_gamuts;
};

} // namespace gamutviewer

#endif
