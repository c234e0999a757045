// Reads the prototypes of the public header, so the sweep knows every
// exported function's parameters without a hand-kept list.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace sweep {

enum class Kind {
    Pointer, // any T* or T**
    Int32,   // int, Status, Tav32s and the 32-bit selectors
    UInt32,
    Int8,
    UInt8,
    Int16,
    UInt16,
    Int64,
    UInt64,
    Float,
    Double,
    Cplx8s,
    Cplx16s,
    Cplx32s,
    Cplx64s,
    Cplx32f,
    Cplx64f,
};

struct Param {
    std::string type; // as written, without the name
    std::string name;
    Kind kind;
    bool isConst = false;  // points to const data (an input)
    bool isRecord = false; // a state record or a transform record
};

enum class Ret { Status, Pointer, Void };

struct Proto {
    std::string name;
    Ret ret;
    std::vector<Param> params;
};

// All prototypes of functions named tavs* in the header text. Throws nothing;
// a parameter type it does not know is reported in `errors`.
std::map<std::string, Proto> parse_header(const std::string& text, std::vector<std::string>& errors);

} // namespace sweep
