#include "attente.h"

#include <memory>

#include <QEventLoop>
#include <QTimer>

#include "minuteur.h"

namespace ui::qt {
namespace {

/// Who is waiting, as long as he is.
struct Veille {
    QEventLoop* boucle = nullptr;
    bool venue = false;
};

}  // namespace

bool attendre(Minuteur& minuteur, int limite,
              const std::function<void(std::function<void()> finir)>& lancer) {
    const Minuteur::Silence silence(minuteur);
    QEventLoop boucle;
    const auto veille = std::make_shared<Veille>(Veille{&boucle});
    QTimer::singleShot(limite, &boucle, &QEventLoop::quit);
    lancer([veille] {
        veille->venue = true;
        if (veille->boucle != nullptr)
            veille->boucle->quit();
    });
    // The status of the loop doesn't tell: a program that ends leaves every loop with its own.
    if (!veille->venue)
        boucle.exec(QEventLoop::ExcludeUserInputEvents);
    veille->boucle = nullptr;
    return veille->venue;
}

}  // namespace ui::qt
