#pragma once

namespace ui::qt {

/// Begins to read the system's font settings on a thread of their own, as Qt would wait for them at
/// the first text. To be called before Qt starts. Where fonts come from elsewhere it does nothing.
void lirefontes();
/// Waits for what `lirefontes` reads, if it was called, and puts it in force; to be called before
/// the first text.
void attendrefontes();

}  // namespace ui::qt
