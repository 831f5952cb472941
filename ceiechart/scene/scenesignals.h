// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_SCENESIGNALS_H
#define CEIECHART_SCENE_SCENESIGNALS_H

#include <ceiechart/scene/targetediting.h>

#include <QCursor>

namespace ceiechart {

/*! \brief Turns the reports of the editing into the signals of \a Scene, which both generations name alike. */
template <typename Scene>
class SceneSignals : public TargetEditing {
protected:
    SceneSignals() = default;
    ~SceneSignals() override = default;

    void repaint() override { scene().update(); }
    void reportGamutValue(const ColorTriangleObject &target) override
    {
        Q_EMIT scene().signal_colorGamutValueChanged(target);
    }
    void reportColorTemperature(double kelvin) override { Q_EMIT scene().signal_colorTempertrueValueChang(kelvin); }
    void reportCursor(const QCursor &cursor) override { Q_EMIT scene().signal_mouseCursorChange(cursor); }
    void reportTarget(const TargetInfoChangedEventArgs &report) override
    {
        Q_EMIT scene().signal_targetInfoChanged(report);
    }
    void reportInitialized(const TriangleObjecIinitializedEventArgs &report) override
    {
        Q_EMIT scene().signal_triangleObjecIinitialized(report);
    }

private:
    Scene &scene() { return static_cast<Scene &>(*this); }
};

} // namespace ceiechart

#endif
