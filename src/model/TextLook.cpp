#include "model/TextLook.h"

#include <bit>
#include <cstring>
#include <deque>
#include <functional>
#include <unordered_map>
#include <vector>

namespace rhomba {

namespace {

std::uint64_t Bits(double value) {
    return std::bit_cast<std::uint64_t>(value);
}

std::uint64_t DashBits(const DashDot& dash) {
    std::uint64_t raw;
    std::memcpy(&raw, dash.data(), sizeof raw);
    return raw;
}

std::size_t HashLook(const TextLook& look) {
    std::size_t hash = std::hash<std::string>{}(look.font);
    const std::uint64_t words[] = {Bits(look.size),
                                   Bits(look.transform.a),
                                   Bits(look.transform.b),
                                   Bits(look.transform.c),
                                   Bits(look.transform.d),
                                   look.style,
                                   look.stroke,
                                   look.fill,
                                   Bits(look.penWidth),
                                   DashBits(look.dash)};
    for (std::uint64_t word : words) hash = (hash ^ word) * 0x100000001B3ull + (hash >> 29);
    return hash;
}

struct LookSlot {
    TextLook look;
    std::size_t hash = 0;
    std::uint32_t users = 0;
};

// A deque, so that a look keeps its address while others come and go.
struct LookTable {
    std::deque<LookSlot> slots;
    std::vector<std::uint32_t> freeSlots;
    std::unordered_multimap<std::size_t, std::uint32_t> byHash;

    std::uint32_t Acquire(const TextLook& look) {
        const std::size_t hash = HashLook(look);
        const auto [first, last] = byHash.equal_range(hash);
        for (auto it = first; it != last; ++it) {
            LookSlot& slot = slots[it->second];
            if (SameLook(slot.look, look)) {
                ++slot.users;
                return it->second;
            }
        }
        std::uint32_t index;
        if (!freeSlots.empty()) {
            index = freeSlots.back();
            freeSlots.pop_back();
        } else {
            index = static_cast<std::uint32_t>(slots.size());
            slots.emplace_back();
        }
        slots[index] = {look, hash, 1};
        byHash.emplace(hash, index);
        return index;
    }

    void Release(std::uint32_t index) {
        LookSlot& slot = slots[index];
        if (--slot.users != 0) return;
        const auto [first, last] = byHash.equal_range(slot.hash);
        for (auto it = first; it != last; ++it) {
            if (it->second == index) {
                byHash.erase(it);
                break;
            }
        }
        slot.look = TextLook{};
        freeSlots.push_back(index);
    }
};

// Never destroyed: a text in static storage may let go of its look after the table's end.
LookTable& Table() {
    static LookTable* const table = new LookTable;
    return *table;
}

} // namespace

bool SameLook(const TextLook& a, const TextLook& b) {
    return a.font == b.font && Bits(a.size) == Bits(b.size) &&
           Bits(a.transform.a) == Bits(b.transform.a) &&
           Bits(a.transform.b) == Bits(b.transform.b) &&
           Bits(a.transform.c) == Bits(b.transform.c) &&
           Bits(a.transform.d) == Bits(b.transform.d) && a.style == b.style &&
           a.stroke == b.stroke && a.fill == b.fill && Bits(a.penWidth) == Bits(b.penWidth) &&
           a.dash == b.dash;
}

SharedLook::SharedLook() : index_(Table().Acquire(TextLook{})) {}

SharedLook::~SharedLook() {
    Table().Release(index_);
}

const TextLook& SharedLook::Get() const {
    return Table().slots[index_].look;
}

void SharedLook::Change(const TextLook& next) {
    if (SameLook(Get(), next)) return;
    const std::uint32_t old = index_;
    index_ = Table().Acquire(next);
    Table().Release(old);
}

std::size_t SharedLook::HeldCount() {
    return Table().byHash.size();
}

} // namespace rhomba
