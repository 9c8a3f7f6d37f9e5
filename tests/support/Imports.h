#pragma once

// For what Wine lets pass and Windows does not: a system function of this test program answers as the test
// says, the product's calls included, until the end of the test.

class ReplacedImport {
  public:
    // The name of an imported function and what stands in for it; throws when it is not imported.
    ReplacedImport(const char* function, void* replacement);
    ~ReplacedImport();
    ReplacedImport(const ReplacedImport&) = delete;
    ReplacedImport& operator=(const ReplacedImport&) = delete;

    // The system's function.
    template <class Function> Function Original() const { return reinterpret_cast<Function>(original_); }

  private:
    void** entry_;
    void* original_;
};
