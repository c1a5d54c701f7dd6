// SPDX-License-Identifier: MIT
#pragma once

/// The web pages that the program opens.
namespace songsweep::links {

inline constexpr const char* website = "https://songsweep.example/";
inline constexpr const char* help = "https://songsweep.example/help.php";
inline constexpr const char* cantAccessITunes = "https://songsweep.example/faq.php#cant-access-itunes";
inline constexpr const char* contact = "https://developers.songsweep.example/contact.php?id=songsweep";

} // namespace songsweep::links
