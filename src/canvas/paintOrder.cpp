#include "canvas/paintOrder.h"

#include <algorithm>
#include <iterator>

namespace zdt {

namespace {

using Places = std::vector<std::size_t>;

/// Those with a position at it, the others in their order around them. Placed from the lowest position on, none moves
/// another that is placed.
Places placed(const std::vector<OrderFlags>& items) {
    Places order;
    Places asking;
    for (std::size_t item = 0; item < items.size(); ++item)
        (items[item].listOrder < 0 ? order : asking).push_back(item);
    std::ranges::stable_sort(asking, {}, [&items](std::size_t item) { return items[item].listOrder; });
    std::size_t free = 0;
    for (const std::size_t item : asking) {
        const auto wanted = static_cast<std::size_t>(items[item].listOrder);
        const std::size_t place = std::min(std::max(wanted, free), order.size());
        order.insert(std::next(order.begin(), static_cast<std::ptrdiff_t>(place)), item);
        free = place + 1;
    }
    return order;
}

} // namespace

std::vector<std::size_t> paintOrder(const std::vector<OrderFlags>& items) {
    Places order = placed(items);
    const auto toFront = [&order](auto&& isFirst) { std::stable_partition(order.begin(), order.end(), isFirst); };
    toFront([&items](std::size_t item) { return items[item].layer != topLayer; });
    toFront([&items](std::size_t item) { return items[item].isBackdrop || items[item].isArea; });
    toFront([&items](std::size_t item) { return !items[item].alwaysLast; });
    return order;
}

} // namespace zdt
