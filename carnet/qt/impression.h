#pragma once

// A list on paper: racks on the front of a sheet, their answers on its back.

#include <string>
#include <vector>

#include <QString>

class QPagedPaintDevice;

namespace carnet {

/// Draws the rows of a list. Each page of racks is followed by the page of its answers, numbered
/// the same. False if the device cannot be drawn on.
[[nodiscard]] bool imprimer(QPagedPaintDevice& papier, const std::vector<std::string>& rangees,
                            const QString& titre);
/// The bytes of a PDF of these rows, on A4.
[[nodiscard]] std::string enpdf(const std::vector<std::string>& rangees, const QString& titre);

}  // namespace carnet
