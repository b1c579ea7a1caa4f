#pragma once

// What is wrong in a list file, line by line.

#include <vector>

#include <QString>

#include "verification.h"

class QWidget;

namespace carnet {

/// Shows what a check of `fichier` found, until it is closed.
void montrerconstats(QWidget* parent, const QString& fichier,
                     const std::vector<atelier::Constat>& constats);

}  // namespace carnet
