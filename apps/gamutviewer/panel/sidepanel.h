// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_SIDEPANEL_H
#define GAMUTVIEWER_SIDEPANEL_H

#include <QWidget>

class QLabel;
class QTabWidget;

namespace gamutviewer {

class Document;
class GroupedTable;
class SignalLog;
class TargetEditor;
class TargetSession;

/*! \brief Beside the pages: the target in numbers, whether the display can show it, and tables of all gamuts. */
class SidePanel : public QWidget {
    Q_OBJECT

public:
    explicit SidePanel(TargetSession *session, QWidget *parent = nullptr);

    TargetEditor *editor() const { return m_editor; }
    SignalLog *log() const { return m_log; }
    GroupedTable *values() const { return m_values; }
    GroupedTable *coverage() const { return m_coverage; }
    QLabel *validity() const { return m_validity; }

private:
    void refresh();
    void refreshValidity();
    void refreshValues();
    void refreshCoverage();

    Document *m_document;
    TargetEditor *m_editor;
    QLabel *m_validity;
    QTabWidget *m_tabs;
    GroupedTable *m_values;
    GroupedTable *m_coverage;
    SignalLog *m_log;
};

} // namespace gamutviewer

#endif
