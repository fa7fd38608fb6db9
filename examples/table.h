// examples/table.h: text in aligned columns.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace demo {

// A number with this many decimal places.
std::string decimal(double value, int places);

struct Column {
    std::string title;
    enum { Left, Right } alignment = Left;
};

class Table {
    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> rows_;

    size_t widthOf(size_t column) const;

public:
    explicit Table(std::vector<Column> columns) : columns_(std::move(columns)) {}
    void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }  // a text for every column
    void print(std::ostream& to) const;
};

}  // namespace demo
