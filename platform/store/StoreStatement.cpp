#include "store/StoreStatement.h"

#include "store/StoreConnection.h"
#include "store/StoreSession.h"

#include <deque>
#include <utility>

namespace trellis {

// Indicators lie in deques, since the statement keeps their addresses.
struct StoreStatement::Binding {
    explicit Binding(StoreSession& owner, soci::session& sql) : session(owner), statement(sql) {}

    StoreSession& session;
    soci::statement statement;
    std::string sql;
    bool bound = false;
    std::deque<soci::indicator> indicators;
    std::vector<std::pair<const std::int64_t*, soci::indicator*>> references;
    std::vector<std::pair<std::int64_t*, soci::indicator*>> integers;
    std::vector<std::pair<std::string*, soci::indicator*>> texts;

    soci::indicator& NewIndicator() { return indicators.emplace_back(soci::i_ok); }

    void ClearNulls() {
        for (const auto& [value, indicator] : integers)
            if (*indicator == soci::i_null)
                *value = 0;
        for (const auto& [value, indicator] : texts)
            if (*indicator == soci::i_null)
                value->clear();
    }
};

StoreStatement::StoreStatement(StoreSession& session, std::string sql)
    : _binding(std::make_unique<Binding>(session, session._connection->sql)) {
    _binding->sql = std::move(sql);
    GuardStore(session.Path(), _binding->sql, [&] {
        _binding->statement.alloc();
        _binding->statement.prepare(_binding->sql);
    });
}

StoreStatement::~StoreStatement() = default;

void StoreStatement::Use(const std::int64_t& value) {
    _binding->statement.exchange(soci::use(value));
}

void StoreStatement::UseReference(const std::int64_t& value) {
    soci::indicator& indicator = _binding->NewIndicator();
    _binding->references.emplace_back(&value, &indicator);
    _binding->statement.exchange(soci::use(value, indicator));
}

void StoreStatement::Use(const std::string& value) {
    _binding->statement.exchange(soci::use(value));
}

void StoreStatement::Into(std::int64_t& value) {
    soci::indicator& indicator = _binding->NewIndicator();
    _binding->integers.emplace_back(&value, &indicator);
    _binding->statement.exchange(soci::into(value, indicator));
}

void StoreStatement::Into(std::string& value) {
    soci::indicator& indicator = _binding->NewIndicator();
    _binding->texts.emplace_back(&value, &indicator);
    _binding->statement.exchange(soci::into(value, indicator));
}

bool StoreStatement::Execute() {
    Binding& binding = *_binding;
    binding.session.CountStatement();
    return GuardStore(binding.session.Path(), binding.sql, [&] {
        if (!std::exchange(binding.bound, true))
            binding.statement.define_and_bind();
        for (const auto& [value, indicator] : binding.references)
            *indicator = *value == 0 ? soci::i_null : soci::i_ok;
        const bool row = binding.statement.execute(true);
        if (row)
            binding.ClearNulls();
        return row;
    });
}

bool StoreStatement::Fetch() {
    return GuardStore(_binding->session.Path(), _binding->sql, [&] {
        const bool row = _binding->statement.fetch();
        if (row)
            _binding->ClearNulls();
        return row;
    });
}

std::int64_t StoreStatement::AffectedRows() const {
    return _binding->statement.get_affected_rows();
}

} // namespace trellis
