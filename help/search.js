// Narrows the list of words on the search page to those that hold one of the words that are typed.
"use strict";
(function () {
  const box = document.getElementById("word");
  const none = document.getElementById("none");
  const sections = Array.from(document.querySelectorAll(".words section"), (section) => ({
    section,
    rows: Array.from(section.querySelectorAll("li"), (row) => ({
      row,
      word: row.firstElementChild.textContent,
    })),
  }));

  function narrow() {
    const wanted = box.value.trim().toLowerCase().split(/\s+/);
    let found = false;
    for (const { section, rows } of sections) {
      let any = false;
      for (const { row, word } of rows) {
        row.hidden = !wanted.some((part) => word.includes(part));
        any = any || !row.hidden;
      }
      section.hidden = !any;
      found = found || any;
    }
    none.hidden = found;
  }

  document.getElementById("ask").hidden = false;
  box.addEventListener("input", narrow);
  narrow();
  box.focus();
})();
