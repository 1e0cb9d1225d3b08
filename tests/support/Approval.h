#pragma once

#include <string>

namespace k7deval::test
{

/// Fails unless a text is the one that was approved for a case: the content of that file below
/// tests/golden, as "load-report/six-hours/items.txt".
///
/// Where the environment names a folder in K7DEVAL_RECEIVED, a text that differs is written there
/// under the same name, for `scripts/golden.sh` to show and to approve. A test never writes below
/// tests/golden.
void expectApproved(const std::string& file, const std::string& text);

} // namespace k7deval::test
