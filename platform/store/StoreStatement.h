#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace trellis {

class StoreSession;

// StoreStatement: one prepared statement, kept and executed again. Values are bound and fetched by address: what
// is given to Use and Into must live as long as the statement and is read at each execution. Failures throw
// StoreFailure.
class StoreStatement {
public:
    StoreStatement(StoreSession& session, std::string sql);
    ~StoreStatement();
    StoreStatement(const StoreStatement&) = delete;
    StoreStatement& operator=(const StoreStatement&) = delete;

    // The next placeholder (:a, :b, ... in any naming, by order). A reference of 0 is bound as NULL.
    void Use(const std::int64_t& value);
    void UseReference(const std::int64_t& value);
    void Use(const std::string& value);
    // The next column of the result; NULL gives 0 or an empty text.
    void Into(std::int64_t& value);
    void Into(std::string& value);

    // Runs the statement with the present values. True when a first row was fetched into the members of Into; a
    // query must then be read to its end with Fetch, since an open one holds a lock.
    bool Execute();
    bool Fetch();
    // Rows that the last execution changed.
    std::int64_t AffectedRows() const;

private:
    struct Binding;
    std::unique_ptr<Binding> _binding;
};

} // namespace trellis
