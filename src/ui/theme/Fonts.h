#pragma once

namespace loom
{

/// Makes the application's derived fonts known and what stands in where a family lacks a letter, and has text drawn as
/// the desktop draws it. Call once, after the application object exists and before the first window.
void registerFonts();

} // namespace loom
