#pragma once

#include <functional>
#include <utility>

namespace platform {

/// Object that notifies one listener, the window that shows it, when a property changes.
class Observable {
 public:
  Observable() = default;
  Observable(const Observable&) = delete;
  Observable& operator=(const Observable&) = delete;

  std::function<void()> changed;

 protected:
  ~Observable() = default;
};

/// Property of an observable object, read by a call and written by assignment.
template <typename Value>
class Property {
 public:
  Property(const Observable& owner, Value initial) : owner_(owner), value_(std::move(initial)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property&) = delete;
  ~Property() = default;

  const Value& operator()() const { return value_; }

  /// Stores the value and notifies the listener if it differs from the old one.
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
