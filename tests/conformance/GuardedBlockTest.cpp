// Guarded blocks: what is thrown, who catches it, what goes on.

#include "CATErrorMacros.h"
#include "CATInputError.h"
#include "CATInternalError.h"

#include "Samples.h"

#include <stdexcept>

namespace {

class GuardedBlocks : public PlatformTest {
  protected:
    // Runs iAction in a block with both branches and tells which one ran.
    template<class Action>
    static std::string BranchOf(const Action& iAction) {
        std::string branch = "none";
        CATTry {
            iAction();
        }
        CATCatch(CATError, pError) {
            branch = pError->IsA();
            pError->Release();
        }
        CATCatchOthers {
            branch = "others";
        }
        CATEndTry;
        return branch;
    }
};

int ReturnedFromWithin() {
    CATTry {
        return 3;
    }
    CATCatch(CATError, pError) {
        pError->Release();
    }
    CATEndTry;
    return 4;
}

void PassOn(CATBaseUnknown* iThrown) {
    CATTry {
        CATThrow(iThrown);
    }
    CATCatch(CATError, pError) {
        static_cast<void>(pError);
        CATRethrow;
    }
    CATEndTry;
}

void CatchInputErrorsOnly(CATBaseUnknown* iThrown, Journal& ioJournal) {
    CATTry {
        CATThrow(iThrown);
    }
    CATCatch(CATInputError, pError) {
        ioJournal.push_back("input error");
        pError->Release();
    }
    CATEndTry;
}

} // namespace

CERTAIN(GuardedBlocks, ABlockThatThrowsNothingRunsNoBranch) {
    bool ran = false;
    EXPECT_EQ("none", BranchOf([&] { ran = true; }));
    EXPECT_TRUE(ran);
}

CERTAIN(GuardedBlocks, AThrownErrorLandsInTheBranchOfItsBase) {
    EXPECT_EQ("CATInputError", BranchOf([] { CATThrow(new CATInputError("Key")); }));
    EXPECT_EQ("SampleError", BranchOf([] { CATThrow(new SampleError("Key")); }));
}

CERTAIN(GuardedBlocks, WhatFollowsTheThrowDoesNotRun) {
    bool ran = false;
    BranchOf([&] {
        CATThrow(new SampleError);
        ran = true;
    });
    EXPECT_FALSE(ran);
}

CERTAIN(GuardedBlocks, TheThrownObjectItselfIsCaughtAndOwnedByTheCatcher) {
    auto* thrown = new SampleError("Key");
    const Owned<CATError> caught = ErrorRaisedBy([&] { CATThrow(thrown); });
    EXPECT_EQ(thrown, caught.get());
    EXPECT_EQ(1, SampleError::living);
}

ASSUMED(GuardedBlocks, AnObjectThatIsNoErrorLandsAmongTheOthers,
        "recalled: the branch takes all that is left") {
    const Owned<SampleObject> object(new SampleObject);
    EXPECT_EQ("others", BranchOf([&] { CATThrow(object.get()); }));
}

CERTAIN(GuardedBlocks, WithoutThatBranchAnotherObjectGoesOnUnchanged) {
    const Owned<SampleObject> object(new SampleObject);
    CATBaseUnknown* passed = nullptr;
    try {
        ErrorRaisedBy([&] { CATThrow(object.get()); });
    } catch (CATBaseUnknown* thrown) {
        passed = thrown;
    }
    EXPECT_EQ(static_cast<CATBaseUnknown*>(object.get()), passed);
}

CERTAIN(GuardedBlocks, ABlockForOneClassLeavesTheOtherErrorsToTheNextBlock) {
    Journal journal;
    auto* internal = new CATInternalError("Key");
    const Owned<CATError> passed = ErrorRaisedBy([&] { CatchInputErrorsOnly(internal, journal); });
    EXPECT_EQ(internal, passed.get());
    EXPECT_EQ(Journal(), journal);
    EXPECT_EQ(nullptr, ErrorRaisedBy([&] { CatchInputErrorsOnly(new CATInputError("Key"), journal); }));
    EXPECT_EQ(Journal{"input error"}, journal);
}

ASSUMED(GuardedBlocks, ThrowingAgainPassesTheSameObjectOn, "recalled: CATRethrow goes to the next block") {
    auto* thrown = new SampleError("Key");
    const Owned<CATError> caught = ErrorRaisedBy([&] { PassOn(thrown); });
    EXPECT_EQ(thrown, caught.get());
}

ASSUMED(GuardedBlocks, ABlockStandsInsideAnotherAndKeepsItsErrorsFromIt, "recalled: blocks nest") {
    Journal journal;
    CATTry {
        CATTry {
            CATThrow(new SampleError("Inner"));
        }
        CATCatch(CATError, pInner) {
            journal.push_back(std::string("inner ") + pInner->GetMsgId());
            pInner->Release();
        }
        CATEndTry;
        journal.push_back("behind the inner block");
        CATThrow(new SampleError("Outer"));
    }
    CATCatch(CATError, pOuter) {
        journal.push_back(std::string("outer ") + pOuter->GetMsgId());
        pOuter->Release();
    }
    CATEndTry;
    EXPECT_EQ((Journal{"inner Inner", "behind the inner block", "outer Outer"}), journal);
}

ASSUMED(GuardedBlocks, AnErrorThrownInABranchLeavesTheBlock, "recalled: a branch does not guard itself") {
    Journal journal;
    CATTry {
        CATTry {
            CATThrow(new SampleError("First"));
        }
        CATCatch(CATError, pFirst) {
            pFirst->Release();
            CATThrow(new SampleError("Second"));
        }
        CATEndTry;
        journal.push_back("never here");
    }
    CATCatch(CATError, pSecond) {
        journal.push_back(pSecond->GetMsgId());
        pSecond->Release();
    }
    CATEndTry;
    EXPECT_EQ(Journal{"Second"}, journal);
}

ASSUMED(GuardedBlocks, ABlockInsideABranchGuardsTheCleaningUp, "recalled: blocks nest in branches as well") {
    Journal journal;
    CATTry {
        CATThrow(new SampleError("First"));
    }
    CATCatch(CATError, pFirst) {
        CATTry {
            CATThrow(new SampleError("Second"));
        }
        CATCatch(CATError, pSecond) {
            journal.push_back(pSecond->GetMsgId());
            pSecond->Release();
        }
        CATEndTry;
        journal.push_back(pFirst->GetMsgId());
        pFirst->Release();
    }
    CATEndTry;
    EXPECT_EQ((Journal{"Second", "First"}), journal);
}

ASSUMED(GuardedBlocks, ABlockIsLeftByReturning,
        "recalled: a guarded operation returns from within its block") {
    EXPECT_EQ(3, ReturnedFromWithin());
}

ASSUMED(GuardedBlocks, AnExceptionOfTheLanguagePassesThrough,
        "documented is that the two kinds are kept apart; passing through is the choice") {
    std::string reason;
    try {
        BranchOf([] { throw std::runtime_error("not ours"); });
    } catch (const std::runtime_error& error) {
        reason = error.what();
    }
    EXPECT_EQ("not ours", reason);
}
