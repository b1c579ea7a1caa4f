#pragma once

#include <functional>
#include <memory>

#include <QByteArray>
#include <QUrl>
#include <QtPlugin>

namespace ui::qt {

/// A request over http or https. None of its functions may destroy the `Transfert`.
struct Demande {
    QUrl adresse{};
    int silence = 0;  ///< milliseconds without a byte after which it fails
    /// Whether a redirection may be followed.
    std::function<bool(const QUrl&)> suivre{};
    /// Takes bytes as they arrive, with the announced length of the whole content (-1: unknown).
    /// Returns false to abandon the transfer.
    std::function<bool(const QByteArray&, qint64 annonce)> recevoir{};
    /// Called once, at the end, with whether the whole content has arrived.
    std::function<void(bool complet)> finir{};
};

/// A request under way. Destroying it abandons the request.
class Transfert {
  public:
    Transfert() = default;
    Transfert(const Transfert&) = delete;
    Transfert& operator=(const Transfert&) = delete;
    virtual ~Transfert() = default;
};

/// The interface of the network module.
class Reseau {
  public:
    Reseau() = default;
    Reseau(const Reseau&) = delete;
    Reseau& operator=(const Reseau&) = delete;
    virtual ~Reseau() = default;
    /// Starts a request to the server itself, never to a cache. Certificates are verified.
    [[nodiscard]] virtual std::unique_ptr<Transfert> demander(const Demande& demande) = 0;
};

}  // namespace ui::qt

Q_DECLARE_INTERFACE(ui::qt::Reseau, "orvane.Reseau/1")
