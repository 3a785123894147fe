#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <utility>

#include "platform/Stroj.h"

namespace rysovna::testy {

/// A disk that tells the test of each work before it is done; the test may throw, and a write that
/// it throws at leaves half of it. It must outlive the files that it made.
class HlidanyDisk final : public DiskStroje {
public:
    enum class Co { Novy, Otevrit, Pripsat, Zapis, NaDisk, Jmeno, Odstranit, Podslozka, Slozka };
    using Hlidka = std::function<void(Co, const std::filesystem::path&)>;
    Hlidka Pred = [](Co, const std::filesystem::path&) {};
    std::function<bool()> PriOtazce = [] { return true; };  ///< is it kept what was written?

    std::unique_ptr<Soubor> NovySoubor(const std::filesystem::path& co) override {
        Pred(Co::Novy, co);
        return std::make_unique<Psany>(DiskStroje::NovySoubor(co), co, Pred);
    }
    std::unique_ptr<Soubor> Otevri(const std::filesystem::path& co, Jak jak) override {
        Pred(jak == Jak::Pripisek ? Co::Pripsat : Co::Otevrit, co);
        return DiskStroje::Otevri(co, jak);
    }
    void Prejmenuj(const std::filesystem::path& co, const std::filesystem::path& jmeno) override {
        Pred(Co::Jmeno, jmeno);
        DiskStroje::Prejmenuj(co, jmeno);
    }
    void Odstran(const std::filesystem::path& co) override {
        Pred(Co::Odstranit, co);
        DiskStroje::Odstran(co);
    }
    void ZalozPodslozku(const std::filesystem::path& co) override {
        Pred(Co::Podslozka, co);
        DiskStroje::ZalozPodslozku(co);
    }
    void SlozkaNaDisk(const std::filesystem::path& slozka) override {
        Pred(Co::Slozka, slozka);
        DiskStroje::SlozkaNaDisk(slozka);
    }
    bool Uchovano() override { return PriOtazce(); }

private:
    /// A file that was made here.
    class Psany final : public Soubor {
    public:
        Psany(std::unique_ptr<Soubor> pravy, std::filesystem::path kde, const Hlidka& pred)
            : s_(std::move(pravy)), kde_(std::move(kde)), pred_(pred) {}
        std::string Cti(std::uint64_t odkud, std::size_t nejvyse) override {
            return s_->Cti(odkud, nejvyse);
        }
        std::uint64_t Delka() override { return s_->Delka(); }
        void Pis(std::uint64_t kam, std::string_view co) override {
            try {
                pred_(Co::Zapis, kde_);
            } catch (const ChybaDisku&) {
                s_->Pis(kam, co.substr(0, co.size() / 2));
                throw;
            }
            s_->Pis(kam, co);
        }
        void Pripis(std::string_view co) override { s_->Pripis(co); }
        void Zkrat(std::uint64_t delka) override { s_->Zkrat(delka); }
        void NaDisk() override {
            pred_(Co::NaDisk, kde_);
            s_->NaDisk();
        }
        bool Zamkni() override { return s_->Zamkni(); }
        void PrevezmiPrava(Soubor& od) override { s_->PrevezmiPrava(od); }

    private:
        std::unique_ptr<Soubor> s_;
        std::filesystem::path kde_;
        const Hlidka& pred_;
    };
};

}  // namespace rysovna::testy
