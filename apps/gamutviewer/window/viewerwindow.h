// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_VIEWERWINDOW_H
#define GAMUTVIEWER_VIEWERWINDOW_H

#include "drawing/picture.h"
#include "editing/document.h"

#include <QMainWindow>

class QLabel;
class QMenu;
class QSplitter;
class QTabWidget;

namespace gamutviewer {

class ComparePage;
class DiagramPage;
class LibraryPage;
class Page;
class SidePanel;
class TargetSession;
class TolerancesMenu;

/*! \brief The program's window: pages and a panel over one document. */
class ViewerWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit ViewerWindow(QWidget *parent = nullptr);
    ~ViewerWindow() override;

    /*!
     * \brief Shows \a description. Saving writes to \a fileName unless it is empty or the sample.
     */
    void setDescription(const DisplayDescription &description, const QString &fileName);

    /*!
     * \brief Opens a file of any format that the program reads; false, with a message, when that fails, and then what
     * was open stays. Asks first when changes would be lost.
     */
    bool openPath(const QString &fileName);
    /*! \brief Writes the description; false, with a message, when that fails. */
    bool saveTo(const QString &fileName);
    /*! \brief Writes \a picture in the format of \a fileName's suffix; false, with a message, when that fails. */
    bool exportTo(const QString &fileName, const Picture &picture, const PictureExtent &extent);
    /*! \brief Copies the picture of the page to the clipboard. */
    void copyPicture();
    /*! \brief The page that is shown. */
    Page *currentPage() const;

    Document *document() { return &m_document; }
    TargetSession *session() const { return m_session; }
    QTabWidget *pages() const { return m_pages; }
    DiagramPage *diagramPage() const { return m_diagramPage; }
    ComparePage *comparePage() const { return m_comparePage; }
    LibraryPage *libraryPage() const { return m_libraryPage; }
    SidePanel *panel() const { return m_panel; }
    TolerancesMenu *tolerancesMenu() const { return m_tolerancesMenu; }
    QLabel *readout() const { return m_readout; }

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void buildPages();
    void buildMenus();
    void buildFileMenu();
    void buildEditMenu();
    void buildViewMenu();
    void buildHelpMenu();
    void buildStatusBar();
    void addPage(Page *page);

    void open();
    bool save();
    bool saveAs();
    void exportByDialog();
    void fillRecentMenu();
    void undo();
    void redo();
    void about();
    void showKeys();

    /*! \brief Whether changes may be lost: they have been saved, or the user does not want them. */
    bool mayLoseChanges();
    void refreshTitle();
    void showReadout(const QPointF &xy);
    void setReadout(const QString &text);
    void followPage();
    void warn(const QString &text);
    /*! \brief Makes the panel as wide as what it shows, until the user has chosen its width. */
    void fitPanel();
    void restoreSettings();
    void saveSettings() const;

    Document m_document;
    QString m_shownFile; // what was opened, for the title
    TargetSession *m_session;
    bool m_panelWidthIsChosen = false;
    QSplitter *m_splitter;
    QTabWidget *m_pages;
    DiagramPage *m_diagramPage;
    ComparePage *m_comparePage;
    LibraryPage *m_libraryPage;
    SidePanel *m_panel;
    QLabel *m_readout;
    QLabel *m_hints;
    QMenu *m_recentMenu;
    TolerancesMenu *m_tolerancesMenu;
};

} // namespace gamutviewer

#endif
