#pragma once

struct sqlite3;

namespace quelvarn::sqlite {

// Makes texts compare as everywhere in the program: the collation QV, and qv_like(pattern, text) for LIKE.
void registerFunctions(sqlite3* database);

} // namespace quelvarn::sqlite
