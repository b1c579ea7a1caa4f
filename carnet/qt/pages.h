#pragma once

// The pages of the carnet, in the order of the window. A page is a widget; its actions make a menu
// of its title, and their shortcuts hold while it is in front. One line here adds a page.

#include <span>

class QWidget;

namespace carnet {

class Seance;

struct Page {
    const char* titre;  ///< UTF-8
    QWidget* (*faire)(Seance& seance, QWidget* parent);
};

[[nodiscard]] std::span<const Page> pages();

}  // namespace carnet
