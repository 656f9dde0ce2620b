#pragma once

#include <string>
#include <vector>

// Follows #if, #elif, #else and #endif through a header, see Lex() for which branch is taken.
class Conditionals
{
public:
	// Whether the lines here belong to a branch that is taken.
	bool IsActive() const { return Blocks.empty() || Blocks.back().bActive; }

	// Takes a directive's text after the '#'. True when it was a conditional. Throws SourceError on one that does not pair.
	bool Read(const std::string& Directive, int Line);

	// To be called at the end of the file. Throws SourceError for a block still open.
	void Finish() const;

private:
	struct Block
	{
		int Line;
		bool bOuterActive;
		bool bActive;
		bool bTaken; // A branch of this block was taken already.
	};

	void Branch(bool bCondition);

	std::vector<Block> Blocks;
};
