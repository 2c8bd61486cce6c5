#pragma once

#include "store/StoreFailure.h"
#include "store/StoreSession.h"

// The package was built with exchange of Boost types. None is used here, and without them its headers need none of
// Boost; they are templates beside the library's own classes, whose layout stays.
#include <soci/soci-config.h>
#undef SOCI_HAVE_BOOST
#undef SOCI_HAVE_BOOST_DATE_TIME
#include <soci/soci.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include <string>

namespace trellis {

// The client library's session behind StoreSession; only sources of this folder include it.
struct StoreSession::Connection {
    soci::session sql;
};

// What a failure of the client library means: 20901 for a query and for a store that cannot be read at all,
// 20903 for a write. `name` is the database.
[[noreturn]] void ThrowStoreFailure(const soci::soci_error& error, const std::string& name,
                                    const std::string& sql);

// Runs a work on the client library and turns its exceptions into StoreFailure.
template <class Work>
auto GuardStore(const std::string& name, const std::string& sql, Work&& work) {
    try {
        return work();
    } catch (const soci::soci_error& error) {
        ThrowStoreFailure(error, name, sql);
    }
}

} // namespace trellis
