#pragma once

#include "core/values/failure.h"

#include <memory>

namespace act {

// A reference to one of the contact manager's objects: its own, or one that belongs to another object. Use of an
// unset one fails with 91.
template <typename Object>
class Reference {
public:
    Reference() = default;
    Reference& operator=(std::unique_ptr<Object> own) {
        object_ = own.get();
        own_ = std::move(own);
        return *this;
    }
    Reference& operator=(Object& belongs_to_another) {
        object_ = &belongs_to_another;
        own_.reset();
        return *this;
    }
    void release() {
        object_ = nullptr;
        own_.reset();
    }

    explicit operator bool() const { return object_ != nullptr; }
    Object* operator->() const { return &**this; }
    Object& operator*() const {
        if (!object_)
            throw values::Failure(values::FailureNumber::object_not_set);
        return *object_;
    }

private:
    std::unique_ptr<Object> own_;
    Object* object_ = nullptr;
};

} // namespace act
