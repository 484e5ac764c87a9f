/// @file
/// The state behind PPTObject. Internal: users hold facades.

#ifndef VELLOX_PPT_OBJECT_PPTOBJECTIMPL_H
#define VELLOX_PPT_OBJECT_PPTOBJECTIMPL_H

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <optional>
#include <string>
#include <utility>

#include "vellox/foundation/Lazy.h"
#include "vellox/foundation/SmallPieces.h"
#include "vellox/host/services/Wrappable.h"
#include "vellox/ppt/object/PPTObject.h"

namespace vellox::ppt {

/// A counted object with an identity. The count is a plain integer: the library is used from one thread.
class PPTObjectImpl : public objreg::factory::full::Wrappable, public InPieces {
public:
    PPTObjectImpl();
    /// A new object: another id, no tag, no holders; its client is what the other's client gives for it.
    PPTObjectImpl(const PPTObjectImpl& other);
    ~PPTObjectImpl() override;

    virtual const char* getFullyQualifiedHostTypeName() const;
    /// A new facade of the object's own class.
    virtual boost::shared_ptr<PPTObject> makeHandle();

    std::wstring getId() const;
    void setId(const std::wstring& id);
    std::wstring getTag() const;
    void setTag(const std::wstring& tag);
    boost::shared_ptr<PPTClientImpl> getClient() const;
    void setClient(const boost::shared_ptr<PPTClientImpl>& client);
    int getRefCount() const { return refCount_; }

    /// What listeners may be told of: an object that isn't whole yet, or not any more.
    enum class Life : unsigned char { Whole, UnderConstruction, Ending };
    Life getLife() const { return life_; }

    /// Lets handles on an object come and go while it is under construction or ending, when its count is 0
    /// and the last of them would otherwise end it.
    class LifeGuard {
    public:
        LifeGuard(PPTObjectImpl& object, Life life) : object_(object) {
            ++object_.refCount_;
            object_.life_ = life;
        }
        LifeGuard(const LifeGuard&) = delete;
        LifeGuard& operator=(const LifeGuard&) = delete;
        ~LifeGuard() {
            --object_.refCount_;
            if (object_.life_ == Life::UnderConstruction)
                object_.life_ = Life::Whole;
        }

    private:
        PPTObjectImpl& object_;
    };

protected:
    struct Labels {
        std::optional<std::wstring> id; // one that was set
        std::wstring tag;
    };
    /// What few objects have; a deck has objects by the hundred thousand, which are as small as can be for that.
    struct Marks {
        boost::shared_ptr<PPTClientImpl> client;
        Lazy<Labels> labels;
        std::wstring name; // of nodes
    };

    /// The Id of an object that wasn't given another.
    virtual std::wstring makeId() const;
    const Marks& getMarks() const { return marks_.get(); }
    Marks& requireMarks() { return marks_.require(); }

private:
    friend void intrusive_ptr_add_ref(PPTObjectImpl* object);
    friend void intrusive_ptr_release(PPTObjectImpl* object);

    Lazy<Marks> marks_;
    unsigned int number_; // of which its Id is made
    int refCount_ : 30;
    Life life_ : 2;
};

/// The way from a facade to its implementation and back, for code inside the library.
struct ObjectAccess {
    static PPTObjectImpl* getImpl(const PPTObject& handle) { return handle.impl_; }
    static PPTObject makeHandle(PPTObjectImpl* impl) { return PPTObject(impl); }
    /// A new facade around an implementation. Facade and count of holders are one piece of memory, as a deck has them by
    /// the hundred thousand.
    template <class Facade, class Impl> static boost::shared_ptr<Facade> makeFacade(Impl* impl) {
        boost::shared_ptr<Facade> piece(static_cast<Facade*>(nullptr), Kept<Facade>{Facade(impl)},
                                        PieceAllocator<Facade>());
        Facade& facade = boost::get_deleter<Kept<Facade>>(piece)->facade;
        return boost::shared_ptr<Facade>(std::move(piece), &facade);
    }
    /// Makes a handle stand for nothing without releasing its object, which is ending already.
    static void abandon(PPTObject& handle) { handle.impl_ = nullptr; }

private:
    /// A facade where a count of holders keeps what is to be done at their end.
    template <class Facade> struct Kept {
        Facade facade;

        void operator()(Facade*) {
            const boost::intrusive_ptr<PPTObjectImpl> object(getImpl(facade), false);
            abandon(facade);
        }
    };
};

/// The implementation behind a handle whose class is known.
template <class Impl> Impl* implOf(const PPTObject& handle) {
    return static_cast<Impl*>(ObjectAccess::getImpl(handle));
}

/// The same for a call in which listeners run: they may let the handle stand for another object before it is over.
template <class Impl> boost::intrusive_ptr<Impl> heldImplOf(const PPTObject& handle) {
    return boost::intrusive_ptr<Impl>(implOf<Impl>(handle));
}

/// The implementation behind a handle if it is of this class, else null.
template <class Impl> Impl* implAs(const PPTObject& handle) {
    return dynamic_cast<Impl*>(ObjectAccess::getImpl(handle));
}

} // namespace vellox::ppt

#endif
