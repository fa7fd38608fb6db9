// tests/pointops/pointwise.h: bit logic, shifts, comparisons and thresholds in one shape, and what their names tell.
#pragma once

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "kvri.h"

namespace test::pointwise {

// The arguments of a call; a function takes those that it has. In place, dst is the last operand.
struct Call {
    std::array<const void*, 2> src{};
    std::array<int, 2> srcStep{};
    void* dst = nullptr;
    int dstStep = 0;
    KvriSize roi{};
    std::array<const void*, 4> value{};  // arrays, or numbers to be passed by value
    int code = 0;
};

// What a parameter is follows from the types around it: a pointer to an image has its step behind it, and the operation's
// parameters stand between the images or behind the size.
enum class Role { Source, SourceStep, Destination, DestinationStep, Size, Array, Value, Code };

template <class... A>
constexpr std::array<Role, sizeof...(A)> rolesOf() {
    constexpr int n = sizeof...(A);
    const bool pointer[] = {std::is_pointer_v<A>...}, constant[] = {std::is_const_v<std::remove_pointer_t<A>>...};
    const bool integer[] = {std::is_same_v<A, int>...}, size[] = {std::is_same_v<A, KvriSize>...};
    std::array<Role, n> role{};
    bool sized = false;
    for (int i = 0; i < n; ++i) {
        if (size[i]) role[i] = Role::Size, sized = true;
        else if (pointer[i] && !sized && integer[i + 1]) role[i] = constant[i] ? Role::Source : Role::Destination;
        else if (pointer[i]) role[i] = Role::Array;
        else if (i > 0 && role[i - 1] == Role::Source) role[i] = Role::SourceStep;
        else if (i > 0 && role[i - 1] == Role::Destination) role[i] = Role::DestinationStep;
        else role[i] = sized && integer[i] ? Role::Code : Role::Value;
    }
    return role;
}

struct Function {
    std::function<KvrStatus(const Call&, int times)> call;
    std::vector<Role> roles;
    int count(Role r) const { return int(std::count(roles.begin(), roles.end(), r)); }
};

namespace detail {

// Takes a call's arguments one after the other.
struct Cursor {
    const Call& c;
    const Role* roles;
    size_t source = 0, value = 0;

    template <class A>
    A next() {
        [[maybe_unused]] const Role role = *roles++;
        if constexpr (std::is_same_v<A, KvriSize>) return c.roi;
        else if constexpr (std::is_pointer_v<A>) {
            if (role == Role::Array) return A(c.value[value++]);
            return role == Role::Source ? A(c.src[source]) : A(const_cast<void*>(static_cast<const void*>(c.dst)));
        } else {
            if constexpr (std::is_same_v<A, int>) {
                if (role == Role::SourceStep) return c.srcStep[source++];
                if (role == Role::DestinationStep) return c.dstStep;
                if (role == Role::Code) return c.code;
            }
            A a;
            std::memcpy(&a, c.value[value++], sizeof a);
            return a;
        }
    }
};

}  // namespace detail

template <class... A>
Function function(KvrStatus (*f)(A...)) {
    static constexpr auto roles = rolesOf<A...>();
    return {[f](const Call& c, int times) {
                detail::Cursor cursor{c, roles.data()};
                const std::tuple<A...> arguments{cursor.next<A>()...};
                KvrStatus status = kvrStatusOk;
                while (times-- > 0) status = std::apply(f, arguments);
                return status;
            },
            {roles.begin(), roles.end()}};
}

// A function, and what its name tells.
struct Case {
    std::string name, operation, type;
    Function function;
    int channels, colours, sampleBytes;
    bool mask;  // one byte per pixel comes out

    Case(const char* n, Function f) : name(n), function(std::move(f)) {
        const size_t layoutAt = name.rfind('_'), typeAt = name.rfind('_', layoutAt - 1);
        const std::string layout = name.substr(layoutAt + 1);
        operation = name.substr(4, typeAt - 4);
        type = name.substr(typeAt + 1, layoutAt - typeAt - 1);
        const bool alpha = layout[0] == 'A';
        channels = layout[alpha ? 2 : 1] - '0';
        colours = alpha ? 3 : channels;
        sampleBytes = std::stoi(type) / 8;
        mask = is("Compare");
    }
    bool is(const char* part) const { return operation.find(part) != std::string::npos; }
    bool isFloat() const { return type == "32f"; }
    int pixelBytes() const { return channels * sampleBytes; }
    int resultBytes() const { return mask ? 1 : pixelBytes(); }
    int sources() const { return function.count(Role::Source); }
    int values() const { return function.count(Role::Array) + function.count(Role::Value); }
    bool hasCode() const { return function.count(Role::Code) > 0; }
};

inline void PrintTo(const Case& c, std::ostream* out) { *out << c.name; }

#define KVRI_POINT(name) {#name, function(name)}
#define KVRI_OUT(op, t) KVRI_POINT(kvri##op##_##t##_C1R), KVRI_POINT(kvri##op##_##t##_C3R), KVRI_POINT(kvri##op##_##t##_AC4R)
#define KVRI_IN(op, t) KVRI_POINT(kvri##op##_##t##_C1IR), KVRI_POINT(kvri##op##_##t##_C3IR), KVRI_POINT(kvri##op##_##t##_AC4IR)
#define KVRI_C134(op, t) KVRI_OUT(op, t), KVRI_IN(op, t)
#define KVRI_C1344(op, t) KVRI_C134(op, t), KVRI_POINT(kvri##op##_##t##_C4R), KVRI_POINT(kvri##op##_##t##_C4IR)
#define KVRI_BITS(op) KVRI_C1344(op, 8u), KVRI_C1344(op, 16u), KVRI_C1344(op, 32s)
#define KVRI_MASKS(op, t) KVRI_OUT(op, t), KVRI_POINT(kvri##op##_##t##_C4R)
#define KVRI_THRESHOLDS(rows, op) rows(op, 8u), rows(op, 16u), rows(op, 16s), rows(op, 32f)

inline const std::vector<Case> kLogic = {
    KVRI_BITS(And), KVRI_BITS(AndC), KVRI_BITS(Or), KVRI_BITS(OrC), KVRI_BITS(Xor), KVRI_BITS(XorC), KVRI_C1344(Not, 8u),
    KVRI_BITS(LShiftC), KVRI_BITS(RShiftC), KVRI_C1344(RShiftC, 8s), KVRI_C1344(RShiftC, 16s),
};

inline const std::vector<Case> kCompare = {
    KVRI_THRESHOLDS(KVRI_MASKS, Compare), KVRI_THRESHOLDS(KVRI_MASKS, CompareC),
    KVRI_MASKS(CompareEqualEps, 32f), KVRI_MASKS(CompareEqualEpsC, 32f),
};

inline const std::vector<Case> kThreshold = {
    KVRI_THRESHOLDS(KVRI_C134, Threshold), KVRI_THRESHOLDS(KVRI_C134, Threshold_GT), KVRI_THRESHOLDS(KVRI_C134, Threshold_LT),
    KVRI_THRESHOLDS(KVRI_C134, Threshold_Val), KVRI_THRESHOLDS(KVRI_C1344, Threshold_GTVal),
    KVRI_THRESHOLDS(KVRI_C1344, Threshold_LTVal), KVRI_THRESHOLDS(KVRI_C134, Threshold_LTValGTVal),
};

}  // namespace test::pointwise
