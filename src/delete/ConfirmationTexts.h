// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteConfirmationFacts.h"

#include <QString>

/// The sentences of the delete confirmation, each worded for one and for many. "&" marks mnemonics where the
/// text is that of a control.
namespace songsweep::confirmationTexts {

QString heading(const DeleteConfirmationFacts& facts);
QString explanation(const DeleteConfirmationFacts& facts);
QString fileOption(const DeleteConfirmationFacts& facts);
/// What takes the option's place where a track is its file.
QString filesGo(const DeleteConfirmationFacts& facts);
QString deleteButton(const DeleteConfirmationFacts& facts);

/// What is told while no file is to be trashed.
QString filesStayLine(const DeleteConfirmationFacts& facts);

/// What is told while the files are looked at.
QString filesPendingLine();

/// What is told in place of the files that go, where the other tracks that use them could not be looked for.
QString libraryUnknownLine(const DeleteConfirmationFacts& facts);

/// What happens to files; each is empty where it has nothing to count. `leaveShared` is the user's choice.
QString trashLine(const DeleteConfirmationFacts& facts, bool leaveShared);
QString sharedLine(const DeleteConfirmationFacts& facts, bool leaveShared);
QString missingLine(const DeleteConfirmationFacts& facts);
QString refusedLine(const DeleteConfirmationFacts& facts);
/// What copies that stay are given; "" until it is known.
QString placesNumber(const DeleteConfirmationFacts& facts);
QString historyNumber(const DeleteConfirmationFacts& facts);
QString fillInNumber(const DeleteConfirmationFacts& facts);
/// What the system's iTunes does otherwise; "" for a library file.
QString iTunesLine(const DeleteConfirmationFacts& facts);
/// The songs whose copies are left as they are.
QString unmergedLine(const DeleteConfirmationFacts& facts);
/// What will be lost for good, or else what is in the way of all.
QString warning(const DeleteConfirmationFacts& facts, FilesToTrash files);

/// Bytes in megabytes, written as sizes are in the table: one tenth above the truncated value.
QString megabytes(std::int64_t bytes);

} // namespace songsweep::confirmationTexts
