#pragma once

#include "application.h"
#include "programme.h"

namespace banc {

/// The real program. Needs `orvane_application` to be linked.
class ProgrammeReel : public Programme {
  public:
    explicit ProgrammeReel(ui::Plateforme& plateforme) : application_(plateforme) {}
    void demarrer() override { application_.demarrer(); }
    [[nodiscard]] ui::Voisins& voisins() override { return application_.voisins(); }

  private:
    application::Application application_;
};

}  // namespace banc
