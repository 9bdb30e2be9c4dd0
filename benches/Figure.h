#pragma once
#include <cstdio>
#include <string>

/// One row of the table of figures, its columns parted by tabs: what was measured, the value, the limit that it is
/// held against, how it stands to the limit, and a mark when it is behind it.
class Figure {
public:
    Figure(std::string name, double value, const char *unit)
        : m_name(std::move(name)), m_value(text(value) + ' ' + unit), m_number(value), m_unit(unit)
    {
    }
    Figure(const Figure &) = delete;
    Figure &operator=(const Figure &) = delete;
    ~Figure()
    {
        std::printf("%s:\t%s\t%s\t%s\t%s\n", m_name.c_str(), m_value.c_str(), m_limit.c_str(), m_ratio.c_str(),
                    m_missed ? "MISSED" : "");
        std::fflush(stdout);
    }

    /// A limit in the unit of the value.
    void atMost(double limit)
    {
        m_limit = "at most " + text(limit) + ' ' + m_unit;
        judge(m_number / limit, m_number > limit);
    }
    /// A ratio to something else that was measured in the same run.
    void beside(const char *other, double ratio, double most)
    {
        m_limit = "at most " + text(most) + " of " + other;
        judge(ratio, ratio > most);
    }
    void besideAtLeast(const char *other, double ratio, double least)
    {
        m_limit = "at least " + text(least) + " of " + other;
        judge(ratio, ratio < least);
    }

private:
    static std::string text(double value)
    {
        char digits[32];
        std::snprintf(digits, sizeof digits, value < 10 ? "%.2f" : "%.0f", value);
        return digits;
    }
    void judge(double ratio, bool missed)
    {
        m_ratio = text(ratio);
        m_missed = missed;
    }

    std::string m_name;
    std::string m_value;
    double m_number;
    std::string m_unit;
    std::string m_limit;
    std::string m_ratio;
    bool m_missed = false;
};
