// What can go wrong in the arithmetic and in reading a number. Thrown, and caught once, at the handler.
#pragma once

#include <exception>

namespace zifferon {

enum class FailureKind { overflow, divisionByZero, notANumber };

class CalculationFailure : public std::exception {
  public:
    explicit CalculationFailure(FailureKind kind) : kind_(kind) {}
    FailureKind kind() const { return kind_; }
    const char* what() const noexcept override { return "calculation failure"; }

  private:
    FailureKind kind_;
};

}  // namespace zifferon
