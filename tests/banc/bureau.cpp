#include "bureau.h"

#include <algorithm>

namespace banc {

/// A form on the desk. It stands in the place of the form's view, and passes on what that view, if
/// there is one, has to know.
class Bureau::Place : public ui::VueFormulaire {
  public:
    Place(Bureau& bureau, ui::Formulaire& formulaire)
        : bureau_(bureau), formulaire_(formulaire), fenetre_(formulaire.vue) {
        formulaire.vue = this;
    }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;
    ~Place() override { formulaire_.vue = fenetre_; }

    [[nodiscard]] ui::Formulaire& formulaire() const { return formulaire_; }
    void modifie(ui::ChampFormulaire champ) override {
        if (fenetre_ != nullptr)
            fenetre_->modifie(champ);
        const bool montre =
            champ == ui::ChampFormulaire::Visible || champ == ui::ChampFormulaire::Montre;
        if (montre && formulaire_.visible())
            bureau_.activer(formulaire_);
    }
    void adieu() override {
        if (fenetre_ != nullptr)
            fenetre_->adieu();
        fenetre_ = nullptr;
        bureau_.oublier(*this);  // destroys this place
    }

  private:
    Bureau& bureau_;
    ui::Formulaire& formulaire_;
    ui::VueFormulaire* fenetre_;
};

Bureau::Bureau() = default;
Bureau::~Bureau() = default;

void Bureau::accueillir(ui::Formulaire& formulaire) {
    simulees_ = formulaire.vue == nullptr;
    places_.insert(places_.begin(), std::make_unique<Place>(*this, formulaire));
    const auto suivre = [this](ui::Minuterie& minuterie) {
        minuterie.surchangement = [this](ui::Minuterie& m) { fraiches_.push_back(&m); };
    };
    for (const auto& minuterie : formulaire.minuteries())
        suivre(*minuterie);
    formulaire.surminuterie = suivre;
}

void Bureau::oublier(const Place& place) {
    std::erase_if(places_, [&](const auto& p) { return p.get() == &place; });
}

ui::Formulaire* Bureau::trouver(std::string_view nom) const {
    const auto place = std::find_if(places_.begin(), places_.end(),
                                    [&](const auto& p) { return p->formulaire().nom() == nom; });
    return place == places_.end() ? nullptr : &(*place)->formulaire();
}

std::vector<ui::Formulaire*> Bureau::formulaires() const {
    std::vector<ui::Formulaire*> liste;
    for (const auto& place : places_)
        liste.push_back(&place->formulaire());
    return liste;
}

ui::Formulaire* Bureau::actif() const {
    const auto devant = std::find_if(places_.rbegin(), places_.rend(),
                                     [](const auto& p) { return p->formulaire().visible(); });
    return devant == places_.rend() ? nullptr : &(*devant)->formulaire();
}

void Bureau::activer(ui::Formulaire& formulaire) {
    auto* ancien = actif();
    const auto place = std::find_if(places_.begin(), places_.end(),
                                    [&](const auto& p) { return &p->formulaire() == &formulaire; });
    std::rotate(place, place + 1, places_.end());
    if (simulees_ && ancien != nullptr && ancien != &formulaire)
        ui::survenir(*ancien, ancien->desactivation);
}

void Bureau::seconde(const std::function<void(const std::function<void()>&)>& executer,
                     const std::function<bool()>& fini) {
    std::vector<ui::Minuterie*> actives;
    for (const auto& place : places_) {
        for (const auto& minuterie : place->formulaire().minuteries()) {
            if (minuterie->actif())
                actives.push_back(minuterie.get());
        }
    }
    std::stable_sort(actives.begin(), actives.end(),
                     [](const auto* a, const auto* b) { return a->nom() < b->nom(); });
    fraiches_.clear();
    for (auto* minuterie : actives) {
        const bool vivante = std::any_of(places_.begin(), places_.end(), [&](const auto& p) {
            const auto& siennes = p->formulaire().minuteries();
            return std::any_of(siennes.begin(), siennes.end(),
                               [&](const auto& m) { return m.get() == minuterie; });
        });
        if (fini() || !vivante || std::ranges::count(fraiches_, minuterie) > 0)
            continue;
        executer([minuterie] { ui::survenir(*minuterie, minuterie->tic); });
    }
}

}  // namespace banc
