#pragma once

#include "contract/names.h"

#include <QDBusContext>

#include <exception>
#include <type_traits>

namespace service {

// Answers the call under way with what the body gives, or with the sentence of its failure.
template <typename Body>
auto answer(QDBusContext& call, Body&& body) -> std::invoke_result_t<Body> {
    try {
        return body();
    } catch (const std::exception& failure) {
        call.sendErrorReply(contract::failure_error, QString::fromUtf8(failure.what()));
    }
    return std::invoke_result_t<Body>();
}

} // namespace service
