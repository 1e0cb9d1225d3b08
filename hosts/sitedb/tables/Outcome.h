#pragma once

namespace k7deval::sitedb
{

/// What became of an hour or an injection of a file. A site takes none twice.
enum class Outcome { Taken, TwiceInFile, AlreadyHeld };

} // namespace k7deval::sitedb
