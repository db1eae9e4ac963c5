#pragma once

#include "sample/Pools.h"
#include "sample/Random.h"

#include <string>
#include <vector>

namespace quillmere::sample {

/// A stretch of study or work; months as "1996-09".
struct Stage {
    std::string from;
    std::string to;
    std::string place;
    std::string subject;
    /// The code of the degree or of the professional title; empty for none.
    std::string code;
};

/// A made-up person, of a specialist's or of a skilled worker's kind. Codes are codes of the code
/// tables; empty texts stand for fields that nobody filled.
struct Person {
    std::string key;
    std::string name;
    std::string sex;
    std::string birthday;
    std::string identity;
    std::string nativePlace;
    std::string ethnicity;
    std::string party;
    std::string education;
    std::string degree;
    Major major;
    std::string title;
    std::string titleLevel;
    std::string post;
    std::string rank;
    Employer employer;
    std::string address;
    std::string phone;
    std::string mobile;
    std::string mail;
    std::string workSince;
    /// Sponsorship type, 1 to 7, and year.
    int type = 1;
    std::string year;
    std::string advisorYear;
    std::string allowanceYear;
    std::vector<Stage> studies;
    std::vector<Stage> jobs;

    // of a skilled worker alone
    std::string trade;
    std::string qualification;
    std::string tradeYears;
    std::string certificateYear;
    std::string issuer;
    std::string certificate;
};

/// Makes the person with that number, from 1. Telephone numbers and the sequence part of identity
/// numbers lie in ranges that no living person has.
[[nodiscard]] Person makePerson(const Pools& pools, Random& random, int number);

/// A two-digit or longer number with zeros in front.
[[nodiscard]] std::string padded(int number, int width);

} // namespace quillmere::sample
