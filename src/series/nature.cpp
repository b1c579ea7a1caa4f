#include "nature.h"

#include <string>

#include "partage.h"

namespace series {
namespace {

constexpr std::string_view benjamins = "Benjamins uniques";

}  // namespace

Nature naturedelaliste(std::string_view typ, std::string_view nombase) {
    if (typ == common::typrallonges) {
        if (nombase.starts_with("Rallonges ava"))
            return Nature::Rallongesavant;
        if (nombase.starts_with("Rallonges arr"))
            return Nature::Rallongesarriere;
        return Nature::Rallongesautres;
    }
    if (nombase == benjamins)
        return Nature::Benjamins;
    if (nombase == std::string(benjamins).append(common::titrerevision))
        return Nature::Benjaminsenrevision;
    return Nature::Simple;
}

}  // namespace series
