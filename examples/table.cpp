#include "table.h"

#include <algorithm>
#include <iomanip>
#include <ostream>
#include <sstream>

namespace demo {

std::string decimal(double value, int places) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(places) << value;
    return text.str();
}

size_t Table::widthOf(size_t column) const {
    size_t width = columns_[column].title.size();
    for (const auto& row : rows_) width = std::max(width, row[column].size());
    return width;
}

void Table::print(std::ostream& to) const {
    const auto cell = [&](size_t column, const std::string& text) {
        to << (column == 0 ? "" : "  ") << (columns_[column].alignment == Column::Left ? std::left : std::right)
           << std::setw(int(widthOf(column))) << text;
    };
    for (size_t c = 0; c < columns_.size(); ++c) cell(c, columns_[c].title);
    to << '\n';
    for (size_t c = 0; c < columns_.size(); ++c) cell(c, std::string(widthOf(c), '-'));
    to << '\n';
    for (const auto& row : rows_) {
        for (size_t c = 0; c < columns_.size(); ++c) cell(c, row[c]);
        to << '\n';
    }
}

}  // namespace demo
