#pragma once

#include <QObject>

#include "reseau.h"

namespace ui::qt {

/// The network module, which alone links Qt Network.
class ModuleReseau : public QObject, public Reseau {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "orvane.Reseau/1")
    Q_INTERFACES(ui::qt::Reseau)

  public:
    [[nodiscard]] std::unique_ptr<Transfert> demander(const Demande& demande) override;
};

}  // namespace ui::qt
