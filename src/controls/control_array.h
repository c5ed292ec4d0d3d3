// Controls of one name told apart by an index, as `chkStatus(0)` to `chkStatus(23)`.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace lodge {

class Form;

template <typename T>
class ControlArray {
  public:
    ControlArray(Form& form, const std::string& name, int count) {
        items_.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            items_.push_back(std::make_unique<T>(form, name, i));
        }
    }

    [[nodiscard]] int count() const { return static_cast<int>(items_.size()); }
    T& operator[](int index) { return *items_.at(static_cast<std::size_t>(index)); }
    const T& operator[](int index) const { return *items_.at(static_cast<std::size_t>(index)); }

    /// Calls `wire(control, index)` for each control, to hang up its handlers or give it its design values.
    template <typename Wire>
    void each(Wire wire) {
        for (int i = 0; i < count(); ++i) {
            wire((*this)[i], i);
        }
    }

  private:
    std::vector<std::unique_ptr<T>> items_;
};

} // namespace lodge
