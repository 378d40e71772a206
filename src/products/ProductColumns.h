#pragma once

/// Columns of the list of products.
namespace ProductColumn {
constexpr int Codigo = 0;
constexpr int Description = 1;
constexpr int Category = 2;
constexpr int Code = 3;
constexpr int Service = 4;
constexpr int Stock = 5;
constexpr int MinimumStock = 6;
constexpr int Price = 7;
constexpr int Supplier = 8;
constexpr int Menu = 9;
constexpr int Barcode = 10;
constexpr int Count = 11;
} // namespace ProductColumn
