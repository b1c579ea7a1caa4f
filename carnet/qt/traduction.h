#pragma once

namespace carnet {

/// What Qt itself writes (the buttons of its boxes, the menu of a text) is French from here on, in
/// the application that stands. False if the texts are nowhere: in the program, as on Windows, or
/// among those of the system's Qt.
bool traduire();

}  // namespace carnet
