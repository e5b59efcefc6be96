// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// Numbers of the controls of the story pane, the story dialog and the tip window.
namespace story_ids {

inline constexpr int dialog = 8065;
inline constexpr int title = 8066;
inline constexpr int previousButton = 8067;
inline constexpr int nextButton = 8068;
inline constexpr int printButton = 8069;
inline constexpr int saveAsButton = 8070;
inline constexpr int storyText = 8071;
inline constexpr int updateNotice = 8072;

inline constexpr int tip = 3059;
inline constexpr int tipText = 2349;

}  // namespace story_ids

}  // namespace wirepane
