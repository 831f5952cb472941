// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_SCENESIGNALLOG_H
#define CEIECHART_TESTS_REFERENCE_SCENESIGNALLOG_H

#include <reference/scenemodel.h>

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QObject>

namespace reference {

/*! \brief Records the signals of a scene of either generation, in the format of SceneModel::takeSignals(). */
template <typename Scene>
class SceneSignalLog {
public:
    explicit SceneSignalLog(Scene *scene)
        : m_scene(scene)
    {
        follow("signal_colorGamutValueChanged", &Scene::signal_colorGamutValueChanged);
        follow("signal_colorGamutWhiteChanged", &Scene::signal_colorGamutWhiteChanged);
        follow("signal_colorTempertrueValueChang", &Scene::signal_colorTempertrueValueChang);
        follow("signal_mouseCursorChange", &Scene::signal_mouseCursorChange);
        follow("signal_targetInfoChanged", &Scene::signal_targetInfoChanged);
        follow("signal_triangleObjecIinitialized", &Scene::signal_triangleObjecIinitialized);
        QObject::connect(scene, &QGraphicsScene::changed, &m_context, [this] { m_updated = true; });
        takeUpdate();
    }
    Q_DISABLE_COPY(SceneSignalLog)

    QStringList takeSignals()
    {
        QStringList taken;
        taken.swap(m_signals);
        return taken;
    }

    bool takeUpdate()
    {
        QCoreApplication::sendPostedEvents(m_scene);
        return std::exchange(m_updated, false);
    }

private:
    template <typename Payload>
    void follow(const char *name, void (Scene::*signal)(Payload))
    {
        QObject::connect(m_scene, signal, &m_context, [this, name](const Payload &payload) {
            m_signals << QLatin1String(name) + QLatin1Char(' ') + describe(payload);
        });
    }

    Scene *m_scene;
    QObject m_context;
    QStringList m_signals;
    bool m_updated = false;
};

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_SCENESIGNALLOG_H
