// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_SCENE_SCENESIGNALS_P_H
#define CEIECHART_SCENE_SCENESIGNALS_P_H

#include <ceiechart/scene/targetscene_p.h>

namespace ceiechart {

/*! \brief Emits the reports of a scene as signals of \a Scene. The signals have the same names in both generations. */
template <typename Scene, typename Base>
class SceneSignals : public Base {
public:
    void reportGamutValue(const ColorTriangleObject &target) override
    {
        Q_EMIT scene()->signal_colorGamutValueChanged(target);
    }
    void reportColorTemperature(double kelvin) override { Q_EMIT scene()->signal_colorTempertrueValueChang(kelvin); }
    void reportCursor(const QCursor &cursor) override { Q_EMIT scene()->signal_mouseCursorChange(cursor); }
    void reportTarget(const TargetInfoChangedEventArgs &report) override
    {
        Q_EMIT scene()->signal_targetInfoChanged(report);
    }
    void reportInitialized(const TriangleObjecIinitializedEventArgs &report) override
    {
        Q_EMIT scene()->signal_triangleObjecIinitialized(report);
    }

protected:
    Scene *scene() const { return static_cast<Scene *>(this->q); }
};

} // namespace ceiechart

#endif // CEIECHART_SCENE_SCENESIGNALS_P_H
