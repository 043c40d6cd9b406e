#include "model/arrange.h"

#include <numeric>

namespace tarnix {

std::vector<Vec3> ArrangeOnPlate(const std::vector<Box>& boxes, const Plate& plate, double gap)
{
    std::vector<size_t> order(boxes.size());
    std::iota(order.begin(), order.end(), size_t(0));
    std::stable_sort(order.begin(), order.end(),
                     [&](size_t a, size_t b) { return boxes[a].Size().y > boxes[b].Size().y; });
    std::vector<Vec3> corners(boxes.size());
    double x = 0.0, y = 0.0, row = 0.0;
    Box placed;
    std::vector<size_t> beside;
    for (const size_t i : order) {
        const Vec3 size = boxes[i].Size();
        if (x > 0.0 && x + size.x > plate.width) {
            x = 0.0;
            y += row + gap;
            row = 0.0;
        }
        if (size.x > plate.width || y + size.y > plate.depth) {
            beside.push_back(i);
            continue;
        }
        corners[i] = {x, y, 0.0};
        placed.Add(Vec3{x, y, 0.0});
        placed.Add(Vec3{x + size.x, y + size.y, 0.0});
        x += size.x + gap;
        row = std::max(row, size.y);
    }
    const Vec3 middle = placed.Center();
    for (Vec3& corner : corners)
        corner = corner - Vec3{middle.x, middle.y, 0.0};
    double outside = -plate.depth / 2.0;
    for (const size_t i : beside) {
        corners[i] = {plate.width / 2.0 + gap, outside, 0.0};
        outside += boxes[i].Size().y + gap;
    }
    std::vector<Vec3> shifts;
    for (size_t i = 0; i < boxes.size(); ++i)
        shifts.push_back(boxes[i].IsEmpty() ? Vec3{} : corners[i] - boxes[i].low);
    return shifts;
}

Vec3 AlignShift(const Box& box, const Box& target, int axis, AlignTo where)
{
    Vec3 shift;
    if (where == AlignTo::Low)
        shift[axis] = target.low[axis] - box.low[axis];
    else if (where == AlignTo::High)
        shift[axis] = target.high[axis] - box.high[axis];
    else
        shift[axis] = target.Center()[axis] - box.Center()[axis];
    return shift;
}

std::vector<Vec3> Distribute(const std::vector<Box>& boxes, int axis)
{
    std::vector<Vec3> shifts(boxes.size());
    if (boxes.size() < 3)
        return shifts;
    std::vector<size_t> order(boxes.size());
    std::iota(order.begin(), order.end(), size_t(0));
    std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) {
        return boxes[a].Center()[axis] < boxes[b].Center()[axis];
    });
    double lengths = 0.0;
    for (const Box& box : boxes)
        lengths += box.Size()[axis];
    const double start = boxes[order.front()].low[axis];
    const double gap =
        (boxes[order.back()].high[axis] - start - lengths) / static_cast<double>(boxes.size() - 1);
    double at = start;
    for (const size_t i : order) {
        shifts[i][axis] = at - boxes[i].low[axis];
        at += boxes[i].Size()[axis] + gap;
    }
    shifts[order.back()][axis] = 0.0;
    return shifts;
}

Vec3 DropShift(const Box& box)
{
    return box.IsEmpty() ? Vec3{} : Vec3{0.0, 0.0, -box.low.z};
}

bool IsInside(const Box& box, const Plate& plate)
{
    constexpr double k_slack = 1e-6;
    const Box room = plate.Bounds();
    for (int axis = 0; axis < 3; ++axis) {
        if (box.low[axis] < room.low[axis] - k_slack || box.high[axis] > room.high[axis] + k_slack)
            return false;
    }
    return true;
}

std::vector<std::pair<int, int>> Collisions(const PartList& parts)
{
    std::vector<std::pair<int, int>> result;
    const int count = static_cast<int>(parts.size());
    for (int i = 0; i < count; ++i) {
        for (int k = i + 1; k < count; ++k) {
            const Part& a = parts[static_cast<size_t>(i)];
            const Part& b = parts[static_cast<size_t>(k)];
            if (a.visible && b.visible && a.Bounds().Intersects(b.Bounds()))
                result.emplace_back(i, k);
        }
    }
    return result;
}

} // namespace tarnix
