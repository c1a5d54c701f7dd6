// SPDX-License-Identifier: MIT
#include <string>

std::string digitSum(int number);

int main() { return digitSum(472) == "sum: 13" ? 0 : 1; }
