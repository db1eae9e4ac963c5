#pragma once

#include "platform/data/Connection.h"
#include "sample/InsertBatch.h"
#include "sample/Person.h"
#include "sample/Pools.h"
#include "sample/Project.h"
#include "sample/Random.h"

#include <string>
#include <vector>

namespace quillmere::sample {

/// The running number of the `number`th person or unit. New ones take the highest and one more, as a number
/// of 16 bits; a register bigger than that counts from 1 again, so that there is room for new ones.
[[nodiscard]] constexpr int runningNumber(int number) {
    constexpr int highest = 30000;
    return (number - 1) % highest + 1;
}

/// Writes people into `A01`, `A02`, `A03` and `A08`; the running number `A0199` counts from 1.
class PersonWriter {
public:
    explicit PersonWriter(data::Connection& connection);

    void write(const Person& person, const Pools& pools, Random& random);
    void flush();

private:
    void writeMaster(const Person& person);
    void writeSkills(const Person& person, std::vector<std::string>& row);

    InsertBatch master_;
    InsertBatch studies_;
    InsertBatch jobs_;
    InsertBatch papers_;
    int written_ = 0;
};

/// Writes projects into `P01`, and the plan of those that were approved into `Plan1`.
class ProjectWriter {
public:
    explicit ProjectWriter(data::Connection& connection);

    void write(const Project& project, const Pools& pools, Random& random);
    void flush();

private:
    InsertBatch project_;
    InsertBatch plan_;
};

/// Writes units into `B01` and `B02`; the running number `B0199` counts from 1.
class UnitWriter {
public:
    explicit UnitWriter(data::Connection& connection);

    /// The `number`th unit, from 1, under the identity `key`, registered in `year`.
    void write(const std::string& key, int number, int year, const Pools& pools, Random& random);
    void flush();

private:
    InsertBatch master_;
    InsertBatch investment_;
};

/// The employer that the `number`th unit is made from, from 1.
[[nodiscard]] const Employer& unitEmployer(const Pools& pools, int number);
/// That unit's name; no two are alike.
[[nodiscard]] std::string unitName(const Pools& pools, int number);

} // namespace quillmere::sample
