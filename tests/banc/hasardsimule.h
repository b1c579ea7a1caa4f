#pragma once

#include <cstdint>
#include <deque>
#include <optional>

#include "hasard.h"

namespace banc {

/// Chance that a scenario controls: given numbers, or a generator that only a scenario seeds.
class HasardSimule : public common::Hasard {
  public:
    HasardSimule() { graine(0); }

    void amorcer(std::int32_t /*secondes*/) override {}
    [[nodiscard]] double tirer() override {
        if (nombres_.empty())
            return generateur_->tirer();
        const double nombre = nombres_.front();
        if (nombres_.size() > 1)
            nombres_.pop_front();
        return nombre;
    }

    /// Sets the next numbers to be drawn, at least one, in [0,1); the last one is repeated.
    void donner(std::deque<double> nombres) { nombres_ = std::move(nombres); }
    /// Draws from a generator with this seed from now on.
    void graine(std::int32_t valeur) {
        nombres_.clear();
        generateur_.emplace().amorcer(valeur);
    }

  private:
    std::deque<double> nombres_;
    std::optional<common::HasardReel> generateur_;
};

}  // namespace banc
