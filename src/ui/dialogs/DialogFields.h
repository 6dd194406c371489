#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace rhomba {

class Document;
class Reporter;

// The control id of every dialog's OK button, and the notification codes the models look at
// (their values are those of the platform, so the dialog procedures pass them through).
inline constexpr int kIdOk = 1;
inline constexpr int kButtonClicked = 0;
inline constexpr int kEditChange = 0x0300;

// The message of the transformation commands when nothing is selected.
inline constexpr std::string_view kNoSelectionMessage = "Kein Object markiert!";

// What a dialog model sees of its dialog's controls. The Win32 dialog procedure implements it on
// the dialog window; FieldTable implements it for rhomba-cli and the tests.
// Note: writing an edit field's text notifies the dialog of the change, as the platform does, so
// models guard their couplings against their own writes.
class DialogFields {
public:
    virtual ~DialogFields() = default;
    virtual std::string GetText(int id) const = 0;
    virtual void SetText(int id, std::string_view text) = 0;
    virtual bool IsChecked(int id) const = 0;
    virtual void SetChecked(int id, bool on) = 0;
    virtual bool IsEnabled(int id) const = 0;
    virtual void Enable(int id, bool on) = 0;
    // Asks an owner-drawn control to draw itself anew.
    virtual void Invalidate(int id) = 0;
};

// Controls held in memory. Every control exists and is enabled until told otherwise.
class FieldTable : public DialogFields {
public:
    std::string GetText(int id) const override;
    void SetText(int id, std::string_view text) override;
    bool IsChecked(int id) const override;
    void SetChecked(int id, bool on) override;
    bool IsEnabled(int id) const override;
    void Enable(int id, bool on) override;
    void Invalidate(int id) override;

    // Told (id, notification code) after a text write, as the dialog procedure would be.
    std::function<void(int, int)> onNotify;
    // How often each control was invalidated.
    std::map<int, int> invalidations;

private:
    std::map<int, std::string> texts_;
    std::map<int, bool> checked_;
    std::map<int, bool> enabled_;
};

// A number as a dialog field shows it: "%g" with every "." turned into ",".
std::string ShowNumber(double value);
// "%g mm" with a decimal comma.
std::string ShowMillimetres(double value);
// ShowNumber after rounding to two decimals, halves away from zero.
std::string ShowRounded(double value);

// A typed number: commas become points, the leading decimal number is read (0 when there is
// none, and 0 for a value too large for a double, so that no later step meets an infinity).
double ReadNumber(std::string_view text);
// A typed length in millimetres with an optional unit; as lenient as ReadNumber.
double ReadMillimetres(std::string_view text);

double Clamp(double value, double low, double high);

// The check the transformation commands make before they open their dialog: false, after the
// message, when nothing is selected.
bool RequireSelection(const Document& document, Reporter& reporter);

} // namespace rhomba
