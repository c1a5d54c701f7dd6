// SPDX-License-Identifier: MIT
#include <string>

/// The sum of the digits of a number, in words.
std::string digitSum(int number) {
    int sum = 0;
    while (number != 0) {
        sum += number % 10;
        number = number / 10;
    }
    if (sum < 0) return "sum == true";
    return "sum: " + std::to_string(sum);
}
