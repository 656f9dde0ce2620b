#pragma once

#include "ISourceControlOperation.h"

/** Asks for the files' states anew, for GetState to give. */
class FUpdateStatus : public ISourceControlOperation
{
public:
	FName GetName() const override { return "UpdateStatus"; }
};

class FCheckOut : public ISourceControlOperation
{
public:
	FName GetName() const override { return "CheckOut"; }
};

/** Adds files, with what is in them now. */
class FMarkForAdd : public ISourceControlOperation
{
public:
	FName GetName() const override { return "MarkForAdd"; }
};

/** Deletes files from revision control. Git leaves them on the disk. */
class FDelete : public ISourceControlOperation
{
public:
	FName GetName() const override { return "Delete"; }
};

/** Takes back what was not committed. Git takes back additions alone; the files stay on the disk. */
class FRevert : public ISourceControlOperation
{
public:
	FName GetName() const override { return "Revert"; }
};
