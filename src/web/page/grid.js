// The entry grid. Characters typed into the current cell are gathered here and go to
// the form as one `grid type` just before whatever the clerk does next, so the
// grid sees the text whole before the key that ends the edit.
'use strict';

const GridView = (() => {
  let pending = null;  // {id, text} typed into the current cell and not yet sent

  // The gathered text as the words of its event, emptied; null when there is none.
  function takeTyping() {
    if (!pending || pending.text === '') {
      pending = null;
      return null;
    }
    const words = ['grid', 'type', pending.text];
    pending = null;
    return words;
  }

  function isCharacter(e) {
    return e.key.length === 1 && !e.ctrlKey && !e.altKey && !e.metaKey;
  }

  function build(c, acts) {
    const root = document.createElement('div');
    root.className = 'ctl grid';
    root.tabIndex = 0;
    const table = document.createElement('table');
    root.append(table);
    let state = c;
    let currentCell = null;

    function showEditor() {
      if (!currentCell) return;
      const g = state.grid;
      const typing = pending && pending.id === c.id;
      const editing = typing || g.editing;
      currentCell.classList.toggle('editing', !!editing);
      currentCell.textContent = '';
      if (!editing) {
        currentCell.textContent = cellText(g, g.row, g.col);
        return;
      }
      const editor = document.createElement('span');
      editor.className = 'cell-editor';
      editor.textContent = typing ? pending.text : g.editText || '';
      currentCell.append(editor);
    }

    root.addEventListener('keydown', (e) => {
      if (isCharacter(e)) {
        e.preventDefault();
        e.stopPropagation();
        if (!pending || pending.id !== c.id) pending = {id: c.id, text: ''};
        pending.text += e.key;
        showEditor();
        return;
      }
      if (e.key === 'Backspace' && pending && pending.id === c.id && pending.text !== '') {
        e.preventDefault();
        e.stopPropagation();
        pending.text = pending.text.slice(0, -1);
        showEditor();
      }
      // Every other key goes to the form's key handling, which sends what was
      // gathered first.
    });

    return {
      root,
      focusTarget: root,
      grid: true,
      update(s) {
        state = s;
        const g = s.grid;
        table.textContent = '';
        const cols = g.cols;
        const head = table.createTHead().insertRow();
        for (let col = 1; col <= cols; ++col) {
          const th = document.createElement('th');
          th.textContent = (g.headings || [])[col - 1] || '';
          setWidth(th, g, col);
          head.append(th);
        }
        const body = table.createTBody();
        currentCell = null;
        for (let row = 1; row <= g.rows; ++row) {
          const tr = body.insertRow();
          tr.classList.toggle('current-row', row === g.row);
          for (let col = 1; col <= cols; ++col) {
            const td = tr.insertCell();
            const width = (g.widths || [])[col - 1];
            if (width === 0) td.hidden = true;
            if ((g.locked || [])[col - 1]) td.classList.add('locked');
            td.textContent = cellText(g, row, col);
            if (row === g.row && col === g.col) {
              td.classList.add('current');
              currentCell = td;
            }
            td.addEventListener('mousedown', (e) => {
              e.preventDefault();
              acts.send(['grid', 'goto', String(row), String(col)]);
            });
          }
        }
        // A typed text that the form has not seen yet stays on show.
        showEditor();
        root.classList.toggle('disabled', !s.enabled);
        if (currentCell) currentCell.scrollIntoView({block: 'nearest', inline: 'nearest'});
      },
    };
  }

  function cellText(g, row, col) {
    const cells = g.cells || [];
    return (cells[row - 1] || [])[col - 1] || '';
  }

  function setWidth(th, g, col) {
    const width = (g.widths || [])[col - 1];
    if (width === 0) {
      th.hidden = true;
      return;
    }
    if (width) th.style.width = th.style.minWidth = th.style.maxWidth = `${width}px`;
  }

  return {build, takeTyping, isCharacter, hasTyping: () => !!pending && pending.text !== ''};
})();
