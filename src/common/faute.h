#pragma once

#include <stdexcept>
#include <string>

namespace common {

/// A fatal fault: the French text of the report says what was being done, which
/// file and line, what is wrong and what the limit is. Handlers let it pass; the
/// one place that calls them shows the report and ends the program with status 1.
class Faute : public std::runtime_error {
  public:
    explicit Faute(const std::string& rapport) : std::runtime_error(rapport) {}
};

}  // namespace common
