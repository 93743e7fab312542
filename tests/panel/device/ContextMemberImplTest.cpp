#include "panel/device/ContextMemberImpl.h"

#include "tests/support/PanelFixture.h"

#include <functional>

namespace {

using namespace panel;
using namespace support;
using contract::Status;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Status kFailure = Status::FromBits(0x80004005);
constexpr Status kPointerMissing = Status::FromBits(0x80004003);

/// A context that notes its members and gives out cookies as told.
class CContextDouble final : public contract::IContext {
public:
    Status Register(const std::shared_ptr<contract::IContextMember>& member,
                    std::uint32_t& cookie) override {
        members.push_back(member.get());
        if (whileRegistering) {
            const auto run = whileRegistering;
            run();
        }
        if (status.IsSuccess()) {
            cookie = nextCookie++;
        }
        return status;
    }
    Status Unregister(std::uint32_t cookie) override {
        unregistered.push_back(cookie);
        return status;
    }
    Status QueryHostViewControl(std::shared_ptr<contract::IHostViewControl>&) override {
        ++queries;
        return contract::kNoSuchInterface;
    }
    Status QueryMessageService(std::shared_ptr<contract::IMessageService>&) override {
        return contract::kNoSuchInterface;
    }

    Status status;
    std::uint32_t nextCookie = 77;
    /// Runs inside Register, before the cookie is given.
    std::function<void()> whileRegistering;
    std::vector<contract::IContextMember*> members;
    std::vector<std::uint32_t> unregistered;
    int queries = 0;
};

class ContextMemberImplTest : public PanelFixture {
protected:
    std::shared_ptr<CContextDouble> context = std::make_shared<CContextDouble>();
    std::shared_ptr<CContextDouble> another = std::make_shared<CContextDouble>();
};

TEST_F(ContextMemberImplTest, RegisteringFormKeepsTheContextAndRegistersThePanel) {
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    EXPECT_THAT(context->members, ElementsAre(panel.get()));
    EXPECT_EQ(context.use_count(), 2);
    EXPECT_THAT(context->unregistered, IsEmpty());
}

TEST_F(ContextMemberImplTest, PlainFormOnlyKeepsTheContext) {
    EXPECT_EQ(panel->SetContext(context), contract::kSuccess);
    EXPECT_THAT(context->members, IsEmpty());
    EXPECT_EQ(context.use_count(), 2);
}

TEST_F(ContextMemberImplTest, EitherFormServesTheView) {
    EXPECT_EQ(panel->SetContext(context), contract::kSuccess);
    EXPECT_EQ(panel->CreateView(nullptr), contract::kSuccess);
    EXPECT_EQ(context->queries, 1);
}

TEST_F(ContextMemberImplTest, EndUnregistersByTheCookieAndReleases) {
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    EndPanel();
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
    EXPECT_EQ(context.use_count(), 1);
}

TEST_F(ContextMemberImplTest, EndOfAPlainMemberUnregistersNothing) {
    EXPECT_EQ(panel->SetContext(context), contract::kSuccess);
    EndPanel();
    EXPECT_THAT(context->unregistered, IsEmpty());
    EXPECT_EQ(context.use_count(), 1);
}

TEST_F(ContextMemberImplTest, EndReleasesAContextThatRefusesToUnregister) {
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    context->status = kFailure;
    EndPanel();
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
    EXPECT_EQ(context.use_count(), 1);
}

TEST_F(ContextMemberImplTest, RefusedRegistrationIsReturnedAndKeepsTheContext) {
    context->status = kFailure;
    EXPECT_EQ(panel->SetContextAndRegister(context), kFailure);
    EXPECT_EQ(context.use_count(), 2);
    EXPECT_EQ(panel->CreateView(nullptr), contract::kSuccess);
    EXPECT_EQ(context->queries, 1);
    EndPanel();
    EXPECT_THAT(context->unregistered, IsEmpty());
    EXPECT_EQ(context.use_count(), 1);
}

TEST_F(ContextMemberImplTest, RegistrationWithAWarningIsReturnedToo) {
    context->status = Status(1);
    EXPECT_EQ(panel->SetContextAndRegister(context), Status(1));
    EndPanel();
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
}

TEST_F(ContextMemberImplTest, NullIsRefusedByBothForms) {
    EXPECT_EQ(panel->SetContextAndRegister(nullptr), kPointerMissing);
    EXPECT_EQ(panel->SetContext(nullptr), kPointerMissing);
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(ContextMemberImplTest, NullLeavesTheContextAndItsRegistration) {
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    EXPECT_EQ(panel->SetContextAndRegister(nullptr), kPointerMissing);
    EXPECT_EQ(panel->SetContext(nullptr), kPointerMissing);
    EXPECT_EQ(context.use_count(), 2);
    EXPECT_THAT(context->unregistered, IsEmpty());
    EndPanel();
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
}

TEST_F(ContextMemberImplTest, AnotherContextReplacesTheFirst) {
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    another->nextCookie = 88;
    EXPECT_EQ(panel->SetContextAndRegister(another), contract::kSuccess);
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
    EXPECT_EQ(context.use_count(), 1);
    EndPanel();
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
    EXPECT_THAT(another->unregistered, ElementsAre(88u));
}

TEST_F(ContextMemberImplTest, RegisteringTwiceGivesTheFirstCookieBack) {
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
    EndPanel();
    EXPECT_THAT(context->unregistered, ElementsAre(77u, 78u));
    EXPECT_EQ(context.use_count(), 1);
}

TEST_F(ContextMemberImplTest, PlainFormOfTheSameContextKeepsTheRegistration) {
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    EXPECT_EQ(panel->SetContext(context), contract::kSuccess);
    EXPECT_THAT(context->unregistered, IsEmpty());
    EndPanel();
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
}

TEST_F(ContextMemberImplTest, RefusalByAnotherContextLeavesTheFirstAllTheSame) {
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    another->status = kFailure;
    EXPECT_EQ(panel->SetContextAndRegister(another), kFailure);
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
    EXPECT_EQ(context.use_count(), 1);
    EXPECT_EQ(another.use_count(), 2);
    EndPanel();
    EXPECT_THAT(another->unregistered, IsEmpty());
}

TEST_F(ContextMemberImplTest, CookieOfZeroIsNeverGivenBack) {
    context->nextCookie = 0;
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    EndPanel();
    EXPECT_EQ(context->members.size(), 1u);
    EXPECT_THAT(context->unregistered, IsEmpty());
}

TEST_F(ContextMemberImplTest, RegisteringAgainWhileRegisteringGivesOneCookieBack) {
    context->whileRegistering = [this] {
        context->whileRegistering = {};
        EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    };
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    EXPECT_THAT(context->unregistered, ElementsAre(78u));
    EndPanel();
    EXPECT_THAT(context->unregistered, ElementsAre(78u, 77u));
}

TEST_F(ContextMemberImplTest, AnotherContextWhileRegisteringStays) {
    context->whileRegistering = [this] {
        EXPECT_EQ(panel->SetContextAndRegister(another), contract::kSuccess);
    };
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
    EXPECT_EQ(context.use_count(), 1);
    EndPanel();
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
    EXPECT_THAT(another->unregistered, ElementsAre(77u));
}

TEST_F(ContextMemberImplTest, RegistrationFollowsTheLatestContext) {
    EXPECT_EQ(panel->SetContextAndRegister(context), contract::kSuccess);
    EXPECT_EQ(panel->SetContext(another), contract::kSuccess);
    EndPanel();
    EXPECT_THAT(context->unregistered, ElementsAre(77u));
    EXPECT_THAT(another->unregistered, IsEmpty());
}

}
