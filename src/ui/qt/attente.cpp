#include "attente.h"

#include <QEventLoop>
#include <QTimer>

#include "minuteur.h"

namespace ui::qt {
namespace {

constexpr int terme = 1;  // status of a wait that did not come to its end

}  // namespace

bool attendre(Minuteur& minuteur, int limite, const std::function<void(QEventLoop&)>& lancer) {
    const Minuteur::Silence silence(minuteur);
    QEventLoop boucle;
    QTimer garde;
    garde.setSingleShot(true);
    QObject::connect(&garde, &QTimer::timeout, &boucle, [&boucle] { boucle.exit(terme); });
    lancer(boucle);
    garde.start(limite);
    return boucle.exec(QEventLoop::ExcludeUserInputEvents) == 0;
}

}  // namespace ui::qt
