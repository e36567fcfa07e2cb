#pragma once

#include "core/host/files.h"
#include "core/host/user_store.h"

#include <memory>
#include <string>

namespace qt {

// The file of the per-user store in the user's configuration folder, the same for the calendar and its companions.
std::string user_store_path();

// The store in that file; its folder is made when it is missing. The files outlive the store.
std::unique_ptr<host::UserStore> make_user_store(host::Files& files);

} // namespace qt
