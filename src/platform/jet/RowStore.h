#pragma once

#include "platform/jet/FieldValue.h"

#include <cstddef>
#include <memory>
#include <vector>

/// Keeps the rows of an answer in a few large blocks.
///
/// A table of tens of thousands of customers stays in memory while its list is filled, so a value costs four bytes
/// beside its text.
class RowStore
{
public:
    explicit RowStore(std::size_t columns) : m_columns(columns) {}

    /// Copies one row; it has a value for each column.
    void append(const std::vector<FieldValue> &row);
    /// Puts the rows in the order of a column's bytes, Null before all; equal ones stay as they are.
    void sortBy(std::size_t column, bool descending);
    std::size_t count() const { return m_rows.size(); }
    /// Values of one row; they point into the store.
    void read(std::size_t row, std::vector<FieldValue> &values) const;

private:
    char *reserve(std::size_t size);

    std::size_t m_columns;
    std::vector<std::unique_ptr<char[]>> m_blocks;
    std::size_t m_free = 0;
    char *m_end = nullptr;
    std::vector<const char *> m_rows;
};
