#include "impression.h"

#include <algorithm>
#include <span>

#include <QBuffer>
#include <QFontMetrics>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include "textesqt.h"

namespace carnet {
namespace {

constexpr int points = 11;
constexpr int pouce = 72;  // points

/// A row: its number, its rack, its answers.
struct Ligne {
    QString numero;
    QString tirage;
    QString reponse;
};

std::vector<Ligne> lignes(const std::vector<std::string>& rangees) {
    std::vector<Ligne> toutes;
    toutes.reserve(rangees.size());
    for (const auto& rangee : rangees) {
        const auto separateur = std::min(rangee.find(';'), rangee.size());
        toutes.push_back(
            {QString::number(toutes.size() + 1) + QStringLiteral(". "),
             qt(std::string_view(rangee).substr(0, separateur)),
             qt(std::string_view(rangee).substr(std::min(separateur + 1, rangee.size())))
                 .replace(QLatin1Char(';'), QLatin1Char(' '))});
    }
    return toutes;
}

class Feuille {
  public:
    Feuille(QPagedPaintDevice& papier, QPainter& peintre, QString titre)
        : peintre_(peintre),
          titre_(std::move(titre)),
          cadre_(QRect(0, 0, papier.width(), papier.height())) {
        QFont fonte = peintre.font();
        fonte.setPixelSize(std::max(1, papier.logicalDpiY() * points / pouce));
        peintre.setFont(fonte);
        hauteur_ = peintre.fontMetrics().lineSpacing() * 5 / 4;
    }

    /// Columns so wide that every text fits, one at least.
    void regler(const std::vector<Ligne>& toutes) {
        int large = 1;
        for (const auto& ligne : toutes) {
            const auto texte = std::max(peintre_.fontMetrics().horizontalAdvance(ligne.tirage),
                                        peintre_.fontMetrics().horizontalAdvance(ligne.reponse));
            large = std::max(large, texte + peintre_.fontMetrics().horizontalAdvance(ligne.numero));
        }
        large += 2 * peintre_.fontMetrics().averageCharWidth();
        colonnes_ = std::max(1, cadre_.width() / large);
        parcolonne_ = std::max(1, cadre_.height() / hauteur_ - 2);
    }
    [[nodiscard]] std::size_t parpage() const {
        return static_cast<std::size_t>(colonnes_) * static_cast<std::size_t>(parcolonne_);
    }

    void dessiner(std::span<const Ligne> page, int numero, bool reponses) {
        peintre_.drawText(QRect(0, 0, cadre_.width(), hauteur_), Qt::AlignLeft,
                          titre_ + (reponses ? QStringLiteral(" – réponses") : QString()));
        peintre_.drawText(QRect(0, 0, cadre_.width(), hauteur_), Qt::AlignRight,
                          QString::number(numero));
        const int large = cadre_.width() / colonnes_;
        for (std::size_t i = 0; i < page.size(); ++i) {
            const int colonne = static_cast<int>(i) / parcolonne_;
            const int rang = static_cast<int>(i) % parcolonne_;
            peintre_.drawText(QRect(colonne * large, (rang + 2) * hauteur_, large, hauteur_),
                              Qt::AlignLeft | Qt::AlignVCenter,
                              page[i].numero + (reponses ? page[i].reponse : page[i].tirage));
        }
    }

  private:
    QPainter& peintre_;
    QString titre_;
    QRect cadre_;
    int hauteur_ = 1;
    int colonnes_ = 1;
    int parcolonne_ = 1;
};

}  // namespace

bool imprimer(QPagedPaintDevice& papier, const std::vector<std::string>& rangees,
              const QString& titre) {
    QPainter peintre;
    if (!peintre.begin(&papier))
        return false;
    const auto toutes = lignes(rangees);
    Feuille feuille(papier, peintre, titre);
    feuille.regler(toutes);
    int numero = 0;
    for (std::size_t debut = 0; debut < toutes.size(); debut += feuille.parpage()) {
        const auto page =
            std::span(toutes).subspan(debut, std::min(feuille.parpage(), toutes.size() - debut));
        if (debut > 0 && !papier.newPage())
            return false;
        feuille.dessiner(page, ++numero, false);
        if (!papier.newPage())
            return false;
        feuille.dessiner(page, numero, true);
    }
    return peintre.end();
}

std::string enpdf(const std::vector<std::string>& rangees, const QString& titre) {
    constexpr qreal marge = 15;
    QBuffer octets;
    octets.open(QIODevice::WriteOnly);
    {
        QPdfWriter papier(&octets);
        papier.setTitle(titre);
        papier.setPageSize(QPageSize(QPageSize::A4));
        papier.setPageMargins(QMarginsF(marge, marge, marge, marge), QPageLayout::Millimeter);
        static_cast<void>(imprimer(papier, rangees, titre));  // memory takes it all
    }
    return octets.data().toStdString();
}

}  // namespace carnet
