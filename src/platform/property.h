#pragma once

#include <functional>
#include <utility>

namespace platform {

/// An object on the screen that tells one listener, the window that shows it, when any of its
/// properties has taken another value.
class Observable {
 public:
  Observable() = default;
  Observable(const Observable&) = delete;
  Observable& operator=(const Observable&) = delete;

  std::function<void()> changed;

 protected:
  ~Observable() = default;
};

/// One property of an observable object. Read it by calling it, write it by assignment.
template <typename Value>
class Property {
 public:
  Property(const Observable& owner, Value initial) : owner_(owner), value_(std::move(initial)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property&) = delete;
  ~Property() = default;

  const Value& operator()() const { return value_; }

  /// Takes the value, and notifies unless it is the value already held.
  Property& operator=(const Value& value) {
    if (value_ == value) return *this;
    value_ = value;
    if (owner_.changed) owner_.changed();
    return *this;
  }

 private:
  const Observable& owner_;
  Value value_;
};

}  // namespace platform
