#pragma once

#include <QString>

class QQmlEngine;

namespace loom
{

class PictureLoading;

enum class Rendering { Hardware, Software };

/// What Qt has to know before the application object exists.
void prepareApplication(const QString& applicationID, Rendering rendering = Rendering::Hardware);

/// Gives an engine what the windows are made of. The pictures' loading outlives the engine.
void prepareEngine(QQmlEngine& engine, PictureLoading& pictures);

} // namespace loom
