#include "platform/jet/RowStore.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

constexpr std::size_t blockSize = 256 * 1024;
using Header = std::uint32_t;
constexpr unsigned kindBits = 2;

} // namespace

char *RowStore::reserve(std::size_t size)
{
    if (size > m_free) {
        const std::size_t fresh = std::max(size, blockSize);
        m_blocks.push_back(std::unique_ptr<char[]>(new char[fresh]));
        m_end = m_blocks.back().get();
        m_free = fresh;
    }
    char *start = m_end;
    m_end += size;
    m_free -= size;
    return start;
}

void RowStore::append(const std::vector<FieldValue> &row)
{
    std::size_t size = m_columns * sizeof(Header);
    for (const FieldValue &value : row)
        size += value.utf8().size();

    char *start = reserve(size);
    char *header = start;
    char *text = start + m_columns * sizeof(Header);
    for (const FieldValue &value : row) {
        const std::string_view utf8 = value.utf8();
        const auto packed = static_cast<Header>(utf8.size() << kindBits | static_cast<std::size_t>(value.kind()));
        std::memcpy(header, &packed, sizeof packed);
        header += sizeof packed;
        text = std::copy(utf8.begin(), utf8.end(), text);
    }
    m_rows.push_back(start);
}

void RowStore::sortBy(std::size_t column, bool descending)
{
    struct Key
    {
        bool filled;
        std::string_view bytes;
        const char *row;
    };
    std::vector<Key> keys;
    keys.reserve(count());
    std::vector<FieldValue> values;
    for (std::size_t row = 0; row < count(); ++row) {
        read(row, values);
        keys.push_back({!values[column].isNull(), values[column].utf8(), m_rows[row]});
    }
    std::stable_sort(keys.begin(), keys.end(), [descending](const Key &left, const Key &right) {
        const Key &first = descending ? right : left;
        const Key &second = descending ? left : right;
        return first.filled != second.filled ? second.filled : first.bytes < second.bytes;
    });
    std::transform(keys.begin(), keys.end(), m_rows.begin(), [](const Key &key) { return key.row; });
}

void RowStore::read(std::size_t row, std::vector<FieldValue> &values) const
{
    values.resize(m_columns);
    const char *header = m_rows[row];
    const char *text = header + m_columns * sizeof(Header);
    for (FieldValue &value : values) {
        Header packed = 0;
        std::memcpy(&packed, header, sizeof packed);
        header += sizeof packed;
        const std::size_t length = packed >> kindBits;
        value = FieldValue(static_cast<FieldValue::Kind>(packed & ((1U << kindBits) - 1)), {text, length});
        text += length;
    }
}
