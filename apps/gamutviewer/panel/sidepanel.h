// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_SIDEPANEL_H
#define GAMUTVIEWER_SIDEPANEL_H

#include "display/filenotes.h"

#include <QWidget>

class QPlainTextEdit;
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
    /*! \brief What the files say besides their gamuts; its tab is there if they say anything. */
    QPlainTextEdit *files() const { return m_files; }
    /*! \brief Shows \a notes instead of those before. */
    void setFileNotes(const FileNotes &notes);
    const FileNotes &fileNotes() const { return m_notes; }
    /*! \brief Shows \a notes below those before. */
    void addFileNotes(const FileNotes &notes);

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
    bool m_coverageIsStale = false;
    GroupedTable *m_hues;
    QPlainTextEdit *m_files;
    FileNotes m_notes;
};

} // namespace gamutviewer

#endif
