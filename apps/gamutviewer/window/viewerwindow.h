// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_VIEWERWINDOW_H
#define GAMUTVIEWER_VIEWERWINDOW_H

#include "drawing/chartexport.h"
#include "editing/document.h"

#include <QMainWindow>

class QLabel;
class QMenu;
class QSplitter;
class QTabWidget;

namespace gamutviewer {

class ChartPage;
class ComparePage;
class EditPage;
class LayerSwitches;
class LensPage;
class Page;
class SidePanel;
class TargetSession;

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
    /*! \brief Writes the chart in the format of \a fileName's suffix; false, with a message, when that fails. */
    bool exportTo(const QString &fileName, const ChartExtent &extent);
    void copyChart();
    /*!
     * \brief What is exported and copied: what the switches of the shown page let through, on its diagram where that is
     * one of the charts, else on x, y.
     */
    ChartScene shownScene() const;

    Document *document() { return &m_document; }
    TargetSession *session() const { return m_session; }
    QTabWidget *pages() const { return m_pages; }
    ChartPage *chartPage() const { return m_chartPage; }
    EditPage *editPage() const { return m_editPage; }
    EditPage *uvPage() const { return m_uvPage; }
    LensPage *lensPage() const { return m_lensPage; }
    ComparePage *comparePage() const { return m_comparePage; }
    SidePanel *panel() const { return m_panel; }
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
    void addPage(Page *page, const QString &title);
    void watchCharts();

    void open();
    bool save();
    bool saveAs();
    void exportChartByDialog();
    void fillRecentMenu();
    void undo();
    void redo();
    void about();
    void showKeys();

    /*! \brief Whether changes may be lost: they have been saved, or the user does not want them. */
    bool mayLoseChanges();
    void refreshTitle();
    void showReadout(const QPointF &xy);
    void warn(const QString &text);
    /*! \brief Makes the panel as wide as what it shows, until the user has chosen its width. */
    void fitPanel();
    void restoreSettings();
    void saveSettings() const;

    Document m_document;
    QString m_shownFile; // what was opened, for the title
    TargetSession *m_session;
    LayerSwitches *m_switches;
    bool m_panelWidthIsChosen = false;
    QSplitter *m_splitter;
    QTabWidget *m_pages;
    ChartPage *m_chartPage;
    EditPage *m_editPage;
    EditPage *m_uvPage;
    LensPage *m_lensPage;
    ComparePage *m_comparePage;
    SidePanel *m_panel;
    QLabel *m_readout;
    QMenu *m_recentMenu;
};

} // namespace gamutviewer

#endif
