#pragma once

#include <QObject>

#include "son.h"

namespace ui::qt {

/// The sound module, which alone links Qt Multimedia.
class ModuleSon : public QObject, public Son {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "orvane.Son/1")
    Q_INTERFACES(ui::qt::Son)

  public:
    [[nodiscard]] std::unique_ptr<Lecture> jouer(const Onde& onde,
                                                 const std::function<void()>& finir) override;
};

}  // namespace ui::qt
