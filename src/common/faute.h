#pragma once

#include <stdexcept>
#include <string>

namespace common {

/// A fault that ends the program. Its report, in French, says what was being done, in which file
/// and line, what is wrong, and the limit. Event handlers let it pass; the one place that calls
/// them shows the report and ends the program with status 1.
class Faute : public std::runtime_error {
  public:
    explicit Faute(const std::string& rapport) : std::runtime_error(rapport) {}
};

}  // namespace common
