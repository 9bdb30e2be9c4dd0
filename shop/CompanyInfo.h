#pragma once
#include "shell/Session.h"

#include <vector>

/// A row of REF_INFO.
struct InfoRow {
    QString idInfo;
    QString sInfo;
    QString sValeur;
};

/// The company data, which is read and rewritten as a whole.
namespace CompanyInfo {

std::vector<InfoRow> read(Connection &connection, Result &result);

/// Deletes all rows and writes those with a label again, then refills `gInfo`. A row without a label falls out, and
/// all later positions move up. On failure the store keeps the old rows, every one of them.
Result write(const std::vector<InfoRow> &rows, Session &session);

} // namespace CompanyInfo
