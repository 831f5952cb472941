// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_TARGETEDITOR_H
#define GAMUTVIEWER_TARGETEDITOR_H

#include "editing/targetedits.h"
#include "panel/stepbox.h"

#include <QWidget>

#include <array>
#include <functional>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QKeyEvent;
class QLabel;
class QMenu;
class QToolButton;

namespace gamutviewer {

class TargetSession;

/*! \brief The target in numbers that can be edited, and the rules of editing. */
class TargetEditor : public QWidget {
    Q_OBJECT

public:
    explicit TargetEditor(TargetSession *session, QWidget *parent = nullptr);
    ~TargetEditor() override;

    /*! \brief Takes the number that is being typed for complete, as leaving its field would. */
    void takeTyped();

    // For tests and for keyboard shortcuts
    StepBox *firstCoordinate(Vertex vertex) const { return m_rows[size_t(vertex)].first; }
    StepBox *secondCoordinate(Vertex vertex) const { return m_rows[size_t(vertex)].second; }
    StepBox *luminance(Vertex vertex) const { return m_rows[size_t(vertex)].luminance; }
    StepBox *temperature() const { return m_temperature; }
    StepBox *duv() const { return m_duv; }
    QComboBox *coordinates() const { return m_coordinates; }
    QComboBox *luminanceUnit() const { return m_luminanceUnit; }
    QCheckBox *holdWhite() const { return m_holdWhite; }
    QCheckBox *lockPrimaries() const { return m_lockPrimaries; }
    QCheckBox *snap() const { return m_snap; }
    QMenu *resetMenu() const { return m_resetMenu; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Row {
        QLabel *label = nullptr;
        StepBox *first = nullptr;
        StepBox *second = nullptr;
        StepBox *luminance = nullptr;
    };

    //! Coordinates, as shown, that make no point with the other one of their row: they wait for that to be entered.
    struct Waiting {
        Vertex vertex;
        std::optional<double> first;
        std::optional<double> second;
        QString reason;
    };

    void buildHeader(QGridLayout *grid);
    void buildRow(QGridLayout *grid, Vertex vertex);
    void buildTemperature(QGridLayout *grid);
    QCheckBox *addRule(QLayout *layout, const QString &text, const QString &explanation);
    StepBox *addBox(double lowest, double highest, int decimals, double step, const QString &name);
    void connectBox(StepBox *box, Vertex vertex, const std::function<void(int mergeKey)> &edit);

    void refresh();
    void refreshRules();
    void fillResetMenu();
    bool showsUv() const;
    bool hasFocus(Vertex vertex) const;
    void editCoordinate(Vertex vertex, const StepBox *box, int mergeKey);
    void editCoordinates(Waiting typed, int mergeKey);
    void dropWaiting();
    void dropUnlessFocused();
    bool coordinateKey(StepBox *box, QKeyEvent *event);
    void editTemperature(int mergeKey);

    TargetSession *m_session;
    QLabel *m_name;
    QToolButton *m_reset;
    QMenu *m_resetMenu;
    QComboBox *m_coordinates;
    QComboBox *m_luminanceUnit;
    QLabel *m_firstHeader;
    QLabel *m_secondHeader;
    std::array<Row, 4> m_rows;
    std::optional<Waiting> m_waiting;
    StepBox *m_temperature;
    StepBox *m_duv;
    QCheckBox *m_holdWhite;
    QCheckBox *m_lockPrimaries;
    QCheckBox *m_snap;
    int m_boxes = 0;
};

} // namespace gamutviewer

#endif
