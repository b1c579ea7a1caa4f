#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QByteArray>
#include <QTcpServer>

class QTcpSocket;

namespace essai {

/// How a page answers.
struct Page {
    QByteArray corps{};
    int statut = 200;
    int coupe = 0;         ///< bytes that are announced and never sent: the line is cut
    bool muette = false;   ///< takes the request and never answers
    bool goutte = false;   ///< sends its bytes one at a time and never comes to the end
    QByteArray entetes{};  ///< further lines of the head, each with CR LF
};

/// A web server on 127.0.0.1, in the test's own thread. Unknown paths answer 404.
class Serveur {
  public:
    /// Serves on `ecoute`, which may be a server of another kind (https).
    explicit Serveur(std::unique_ptr<QTcpServer> ecoute = std::make_unique<QTcpServer>(),
                     const char* protocole = "http");

    std::map<std::string, Page, std::less<>> pages;
    /// The heads of the requests, as they came.
    std::vector<QByteArray> demandes;

    [[nodiscard]] std::string adresse(const std::string& chemin) const;
    /// Closes the door: whoever comes now finds nobody.
    void fermer() { ecoute_->close(); }

  private:
    void accueillir(QTcpSocket& ligne);
    void repondre(QTcpSocket& ligne, const Page& page);

    std::unique_ptr<QTcpServer> ecoute_;
    std::string racine_;
};

}  // namespace essai
