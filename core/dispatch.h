// core/dispatch.h: how an exported name reaches its body.
//
// KVRI_EXPORT(name, body) makes the export `name`, whose prototype stands in the public header: a constant table of its
// two bodies, one per processor variant, and a three-instruction entry that jumps through it with the caller's arguments
// untouched. A body of another type than the prototype, or a name without prototype, does not compile.
#pragma once

#include <cstdint>

namespace kvri {

template <class Function>
struct DispatchTable {
    Function* variant[2];
    constexpr DispatchTable(Function* both) : variant{both, both} {}
    constexpr DispatchTable(Function* plain, Function* inOrder) : variant{plain, inOrder} {}
};

}  // namespace kvri

// 0, or 1 on low-power in-order cores; set once at load.
extern "C" [[gnu::visibility("hidden")]] int32_t CpuVariantIndex;

// rax and r11 carry no arguments.
#define KVRI_EXPORT(name, ...)                                                                             \
    extern "C" const ::kvri::DispatchTable<decltype(name)> name##_table;                                   \
    const ::kvri::DispatchTable<decltype(name)> name##_table{__VA_ARGS__};                                 \
    asm(".pushsection .text." #name ",\"ax\",@progbits\n\t"                                                \
        ".p2align 4\n\t.globl " #name "\n\t.type " #name ",@function\n" #name ":\n\t.cfi_startproc\n\t"    \
        "movslq CpuVariantIndex(%rip), %rax\n\t"                                                           \
        "leaq " #name "_table(%rip), %r11\n\t"                                                             \
        "jmp *(%r11,%rax,8)\n\t"                                                                           \
        ".cfi_endproc\n\t.size " #name ", .-" #name "\n\t.popsection")
