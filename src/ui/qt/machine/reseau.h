#pragma once

#include <functional>
#include <memory>

#include <QByteArray>
#include <QUrl>
#include <QtPlugin>

namespace ui::qt {

/// A request over http or https. What is called must not end the transfer's life.
struct Demande {
    QUrl adresse{};
    int silence = 0;  ///< milliseconds without a byte after which it has failed
    /// Whether a redirection may be followed.
    std::function<bool(const QUrl&)> suivre{};
    /// Takes bytes as they come, with the length of the whole as announced (-1: not); false to
    /// give up.
    std::function<bool(const QByteArray&, qint64 annonce)> recevoir{};
    /// Called once, at the end: whether the whole content has come.
    std::function<void(bool complet)> finir{};
};

/// A request under way; it is given up when this goes.
class Transfert {
  public:
    Transfert() = default;
    Transfert(const Transfert&) = delete;
    Transfert& operator=(const Transfert&) = delete;
    virtual ~Transfert() = default;
};

/// What the network module offers.
class Reseau {
  public:
    Reseau() = default;
    Reseau(const Reseau&) = delete;
    Reseau& operator=(const Reseau&) = delete;
    virtual ~Reseau() = default;
    /// Asks a server, never a cache. Certificates are verified.
    [[nodiscard]] virtual std::unique_ptr<Transfert> demander(const Demande& demande) = 0;
};

}  // namespace ui::qt

Q_DECLARE_INTERFACE(ui::qt::Reseau, "orvane.Reseau/1")
