#include "tache.h"

#include <exception>

#include "textesqt.h"

namespace carnet {

Tache::Tache(QObject* parent) : QObject(parent) {}

void Tache::finir() {
    arret_ = true;
    if (fil_ == nullptr)
        return;
    fil_->disconnect(this);
    fil_->wait();
    delete fil_;
    fil_ = nullptr;
}

bool Tache::lancer(std::function<void(const Avance&)> travail,
                   std::function<void(const QString& faute)> fin) {
    if (encours())
        return false;
    arret_ = false;
    faute_.clear();
    fil_ = QThread::create([this, travail = std::move(travail)] {
        const Avance avance = [this](int millemes, std::string_view quoi) {
            emit avancee(millemes, qt(quoi));
            return !arret_;
        };
        try {
            travail(avance);
        } catch (const std::exception& ennui) {
            faute_ = qt(ennui.what());
        }
    });
    fil_->setParent(this);
    connect(fil_, &QThread::finished, this, [this, fin = std::move(fin)] {
        fil_->deleteLater();
        fil_ = nullptr;
        fin(faute_);
        emit change();
    });
    fil_->start();
    emit change();
    return true;
}

}  // namespace carnet
