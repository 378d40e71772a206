#pragma once

/// Columns of the lists of customers; the sale window has the first three.
namespace CustomerColumn {
constexpr int Codigo = 0;
constexpr int Name = 1;
constexpr int Nick = 2;
constexpr int Group = 3;
constexpr int BirthDate = 4;
constexpr int Note = 5;
constexpr int Authorised = 6;
constexpr int Count = 7;
} // namespace CustomerColumn
