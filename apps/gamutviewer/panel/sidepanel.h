// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_SIDEPANEL_H
#define GAMUTVIEWER_SIDEPANEL_H

#include <QWidget>

class QTabWidget;

namespace gamutviewer {

class Document;
class GroupedTable;
class TargetEditor;
class TargetSession;
class Verdict;

/*! \brief Beside the pages: whether the display can show the target, the target in numbers, and tables of all gamuts.
 */
class SidePanel : public QWidget {
    Q_OBJECT

public:
    explicit SidePanel(TargetSession *session, QWidget *parent = nullptr);

    TargetEditor *editor() const { return m_editor; }
    GroupedTable *values() const { return m_values; }
    GroupedTable *coverage() const { return m_coverage; }
    GroupedTable *hues() const { return m_hues; }
    Verdict *verdict() const { return m_verdict; }

private:
    void refresh();
    void refreshValues();
    void refreshCoverage();
    void refreshHues();

    Document *m_document;
    Verdict *m_verdict;
    TargetEditor *m_editor;
    QTabWidget *m_tabs;
    GroupedTable *m_values;
    GroupedTable *m_coverage;
    GroupedTable *m_hues;
};

} // namespace gamutviewer

#endif
