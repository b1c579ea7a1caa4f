#pragma once

#include <utility>

namespace ui {

/// The owner of properties: told which one has just changed.
template <class Champ>
class Observe {
  public:
    virtual void modifie(Champ champ) = 0;

  protected:
    Observe() = default;
    Observe(const Observe&) = default;
    Observe& operator=(const Observe&) = default;
    ~Observe() = default;
};

/// A value whose changes its owner is told of. It is read by a call and written by an assignment;
/// writing the same value again tells nothing.
template <class T, class Champ>
class Propriete {
  public:
    Propriete(Observe<Champ>& proprietaire, Champ champ, T valeur)
        : proprietaire_(proprietaire), valeur_(std::move(valeur)), champ_(champ) {}
    Propriete(const Propriete&) = delete;
    Propriete& operator=(const Propriete&) = delete;
    ~Propriete() = default;

    const T& operator()() const { return valeur_; }
    Propriete& operator=(T valeur) {
        if (valeur_ != valeur) {
            valeur_ = std::move(valeur);
            proprietaire_.modifie(champ_);
        }
        return *this;
    }

  private:
    Observe<Champ>& proprietaire_;
    T valeur_;
    Champ champ_;
};

}  // namespace ui
