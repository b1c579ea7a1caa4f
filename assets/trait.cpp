#include "trait.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace assets {

namespace {

constexpr double degre = std::numbers::pi / 180;
constexpr double pas = 6;  // degrees between two points of an arc

double distancesegment(Point a, Point b, Point p) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double longueur = dx * dx + dy * dy;
    const double part =
        longueur > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / longueur, 0.0, 1.0) : 0.0;
    return std::hypot(p.x - a.x - part * dx, p.y - a.y - part * dy);
}

// Even-odd rule: does the segment pass from one side to the other of the ray that leaves p
// leftwards?
bool croise(Point a, Point b, Point p) {
    return (a.y > p.y) != (b.y > p.y) && p.x > a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x);
}

}  // namespace

std::vector<Point> courbe(const std::vector<Arc>& arcs) {
    std::vector<Point> points;
    for (const Arc& arc : arcs) {
        const int nombre = static_cast<int>(std::ceil(std::abs(arc.fin - arc.debut) / pas));
        for (int i = 0; i <= nombre; ++i) {
            const double part = nombre > 0 ? static_cast<double>(i) / nombre : 0.0;
            const double angle = (arc.debut + part * (arc.fin - arc.debut)) * degre;
            points.push_back({arc.centre.x + arc.rayonx * std::cos(angle),
                              arc.centre.y + arc.rayony * std::sin(angle)});
        }
    }
    return points;
}

double distance(const Trait& trait, Point point) {
    const auto& points = trait.points;
    double proche = std::numeric_limits<double>::infinity();
    bool dedans = false;
    for (std::size_t i = trait.plein || points.size() == 1 ? 0 : 1; i < points.size(); ++i) {
        const Point precedent = points[i > 0 ? i - 1 : points.size() - 1];
        proche = std::min(proche, distancesegment(precedent, points[i], point));
        dedans ^= trait.plein && croise(precedent, points[i], point);
    }
    return (dedans ? -proche : proche) - trait.rayon;
}

void ajouter(Dessin& dessin, const Dessin& partie, const Pose& pose) {
    const double cosinus = std::cos(pose.angle * degre) * pose.echelle;
    const double sinus = std::sin(pose.angle * degre) * pose.echelle;
    for (Trait trait : partie.traits) {
        for (Point& p : trait.points) {
            const double x = p.x - partie.largeur / 2;
            const double y = p.y - partie.hauteur / 2;
            p = {pose.milieu.x + x * cosinus - y * sinus, pose.milieu.y + x * sinus + y * cosinus};
        }
        trait.rayon *= pose.echelle;
        trait.flou *= pose.echelle;
        dessin.traits.push_back(std::move(trait));
    }
}

}  // namespace assets
