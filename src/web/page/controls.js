// The form's controls in the page, one builder a kind. A builder makes the
// control's elements once; update() brings them to the control's state each time
// the server answers. What the clerk does goes to `acts`, the form's side.
'use strict';

const Controls = (() => {
  // A caption with its access-key marker: "&Save" shows S underlined, "&&" is an ampersand.
  function caption(element, text) {
    element.textContent = '';
    const source = text || '';
    let plain = '';
    for (let i = 0; i < source.length; ++i) {
      const c = source[i];
      if (c === '&' && i + 1 < source.length) {
        const next = source[++i];
        if (next === '&') {
          plain += '&';
          continue;
        }
        if (plain) element.append(plain);
        plain = '';
        const key = document.createElement('u');
        key.textContent = next;
        element.append(key);
        continue;
      }
      plain += c;
    }
    if (plain) element.append(plain);
  }

  function make(tag, className) {
    const element = document.createElement(tag);
    if (className) element.className = className;
    return element;
  }

  // Sets a text box's value unless the clerk has typed into it something the
  // server has not seen yet.
  function setValue(input, text, acts, id) {
    if (acts.typingPending(id)) return;
    if (input.value !== text) input.value = text;
  }

  // The form's labels were measured for a narrower face than the page may have: a
  // caption a little wider than its label is narrowed to fit; a much longer one (a
  // label the form fills with a name) runs on past its width.
  function fitLabel(root, width) {
    root.style.transform = '';
    if (!(width > 0) || root.hidden) return;
    const needed = root.scrollWidth;
    if (needed <= width + 1) return;
    root.style.width = `${needed}px`;
    if (width / needed >= 0.75) root.style.transform = `scaleX(${width / needed})`;
  }

  function label(c, acts) {
    const root = make('div', 'ctl label');
    root.addEventListener('mousedown', () => acts.click(c.id));
    return {
      root,
      update(s) {
        caption(root, s.caption);
        fitLabel(root, s.width);
      },
    };
  }

  function frame(c) {
    const root = make('div', 'ctl frame');
    const legend = make('span', 'frame-caption');
    root.append(legend);
    return {
      root,
      content: root,
      update(s) {
        caption(legend, s.caption);
        legend.hidden = !s.caption;
        root.classList.toggle('captioned', !!s.caption);
      },
    };
  }

  function button(c, acts) {
    const root = make('button', 'ctl button');
    root.type = 'button';
    root.addEventListener('click', () => acts.click(c.id));
    return {root, focusTarget: root, update: (s) => caption(root, s.caption)};
  }

  function checkBox(c, acts) {
    const root = make('label', 'ctl checkbox');
    const box = make('input');
    box.type = 'checkbox';
    const text = make('span');
    root.append(box, text);
    // The form decides the new value; the box shows what it answers.
    root.addEventListener('click', (e) => {
      e.preventDefault();
      acts.click(c.id);
    });
    return {
      root,
      focusTarget: box,
      update(s) {
        box.checked = s.value === 1;
        box.indeterminate = s.value === 2;
        box.disabled = !s.enabled;
        caption(text, s.caption);
      },
    };
  }

  function textBox(c, acts) {
    const input = c.multiLine ? make('textarea', 'ctl text') : make('input', 'ctl text');
    if (!c.multiLine) input.type = 'text';
    input.autocomplete = 'off';
    input.spellcheck = false;
    input.addEventListener('input', () => acts.typed(c.id, input));
    input.addEventListener('mousedown', () => acts.focus(c.id));
    return {
      root: input,
      focusTarget: input,
      input,
      update(s) {
        input.readOnly = !!s.locked;
        input.disabled = !s.enabled;
        setValue(input, s.text || '', acts, c.id);
      },
    };
  }

  // A drop-down list of a typed combo box, opened by its button.
  function openChoices(anchor, entries, current, choose) {
    closeChoices();
    const list = make('ul', 'drop-list');
    list.id = 'drop-list';
    entries.forEach((entry, i) => {
      const row = make('li', i === current ? 'current' : '');
      row.textContent = entry;
      row.addEventListener('mousedown', (e) => {
        e.preventDefault();
        closeChoices();
        choose(i);
      });
      list.append(row);
    });
    const place = anchor.getBoundingClientRect();
    list.style.left = `${place.left + window.scrollX}px`;
    list.style.top = `${place.bottom + window.scrollY}px`;
    list.style.minWidth = `${place.width}px`;
    document.body.append(list);
    setTimeout(() => document.addEventListener('mousedown', closeChoices, {once: true}));
  }

  function closeChoices() {
    const open = document.getElementById('drop-list');
    if (open) open.remove();
  }

  function comboBox(c, acts) {
    if (c.style === 2) {
      const select = make('select', 'ctl combo-list');
      select.addEventListener('mousedown', () => acts.focus(c.id));
      select.addEventListener('change', () => acts.send(['select', c.id, String(select.selectedIndex)]));
      return {
        root: select,
        focusTarget: select,
        update(s) {
          const entries = s.entries || [];
          const shown = Array.from(select.options).map((o) => o.text);
          if (shown.join('\n') !== entries.join('\n') || shown.length !== entries.length) {
            select.textContent = '';
            for (const entry of entries) select.append(new Option(entry));
          }
          select.selectedIndex = s.listIndex;
          select.disabled = !s.enabled;
        },
      };
    }
    const root = make('div', 'ctl combo');
    const input = make('input', 'combo-text');
    input.type = 'text';
    input.autocomplete = 'off';
    const drop = make('button', 'combo-drop');
    drop.type = 'button';
    drop.tabIndex = -1;
    drop.textContent = '\u25be';
    root.append(input, drop);
    let entries = [];
    let current = -1;
    input.addEventListener('input', () => acts.typed(c.id, input));
    input.addEventListener('mousedown', () => acts.focus(c.id));
    drop.addEventListener('mousedown', (e) => {
      e.preventDefault();
      if (document.getElementById('drop-list')) return closeChoices();
      openChoices(root, entries, current, (i) => acts.send(['select', c.id, String(i)]));
    });
    return {
      root,
      focusTarget: input,
      input,
      update(s) {
        entries = s.entries || [];
        current = s.listIndex;
        input.readOnly = !!s.locked;
        input.disabled = drop.disabled = !s.enabled;
        setValue(input, s.text || '', acts, c.id);
      },
    };
  }

  // Rows of a list box or list view: a click selects the row, the box ticks it,
  // Up and Down select the neighbour and Space ticks the selected row.
  function listKeys(root, c, acts, rowCount, selectedRow, tickedRow, canTick) {
    root.addEventListener('keydown', (e) => {
      const row = selectedRow();
      if (e.key === 'ArrowDown' || e.key === 'ArrowUp') {
        e.preventDefault();
        e.stopPropagation();
        const next = e.key === 'ArrowDown' ? Math.min(row + 1, rowCount()) : Math.max(row - 1, 1);
        if (next >= 1 && next !== row) acts.send(['select', c.id, String(next)]);
      } else if (e.key === ' ' && canTick() && row >= 1) {
        e.preventDefault();
        e.stopPropagation();
        acts.send([tickedRow(row) ? 'untick' : 'tick', c.id, String(row)]);
      }
    });
  }

  function listBox(c, acts) {
    const root = make('div', 'ctl listbox');
    root.tabIndex = 0;
    let state = c;
    root.addEventListener('mousedown', (e) => {
      if (e.target === root) acts.focus(c.id);
    });
    listKeys(
      root, c, acts,
      () => (state.entries || []).length,
      () => state.listIndex + 1,
      (row) => !!(state.selected || [])[row - 1],
      () => !!state.checkBoxes);
    return {
      root,
      focusTarget: root,
      update(s) {
        state = s;
        root.textContent = '';
        (s.entries || []).forEach((entry, i) => {
          const row = make('div', 'list-row');
          const n = String(i + 1);
          const chosen = s.checkBoxes ? i === s.listIndex : !!(s.selected || [])[i] || i === s.listIndex;
          row.classList.toggle('selected', chosen);
          if (s.checkBoxes) row.append(tickBox(!!(s.selected || [])[i], c.id, n, acts));
          row.append(entry);
          row.addEventListener('click', () => acts.send(['select', c.id, n]));
          root.append(row);
        });
        root.classList.toggle('disabled', !s.enabled);
      },
    };
  }

  // A row's check box: the click goes to the form as a tick or an untick, and the
  // box shows what the form answers, not what the browser toggled.
  function tickBox(checked, id, n, acts) {
    const box = make('input');
    box.type = 'checkbox';
    box.checked = checked;
    box.tabIndex = -1;
    box.addEventListener('click', (e) => {
      e.preventDefault();
      e.stopPropagation();
      acts.send([checked ? 'untick' : 'tick', id, n]);
    });
    return box;
  }

  function listView(c, acts) {
    const root = make('div', 'ctl listview');
    root.tabIndex = 0;
    const table = make('table');
    root.append(table);
    let state = c;
    const selectedRow = () => (state.items || []).findIndex((item) => item.selected) + 1;
    root.addEventListener('mousedown', (e) => {
      if (e.target === root) acts.focus(c.id);
    });
    listKeys(
      root, c, acts,
      () => (state.items || []).length,
      selectedRow,
      (row) => !!state.items[row - 1].checked,
      () => !!state.checkBoxes);
    return {
      root,
      focusTarget: root,
      update(s) {
        state = s;
        const columns = s.columns || [];
        // A column the form narrowed to nothing carries a key and is not shown.
        const shown = columns.map((col, i) => ({col, i})).filter(({col}) => col.width > 0);
        table.textContent = '';
        const head = table.createTHead().insertRow();
        if (s.checkBoxes) head.append(make('th', 'tick-col'));
        for (const {col} of shown) {
          const th = make('th');
          th.textContent = col.text;
          th.style.width = th.style.minWidth = th.style.maxWidth = `${col.width}px`;
          head.append(th);
        }
        const body = table.createTBody();
        (s.items || []).forEach((item, r) => {
          const tr = body.insertRow();
          const n = String(r + 1);
          tr.classList.toggle('selected', !!item.selected);
          tr.classList.toggle('bold', !!item.bold);
          if (s.checkBoxes) {
            const td = tr.insertCell();
            td.className = 'tick-col';
            td.append(tickBox(!!item.checked, c.id, n, acts));
          }
          const texts = [item.text, ...(item.subItems || [])];
          for (const {i} of shown) {
            const td = tr.insertCell();
            td.textContent = texts[i] || '';
          }
          tr.addEventListener('click', () => acts.send(['select', c.id, n]));
          tr.addEventListener('dblclick', () => acts.send(['dblclick', c.id]));
        });
        root.classList.toggle('disabled', !s.enabled);
      },
    };
  }

  function datePicker(c, acts) {
    const input = make('input', 'ctl date');
    input.type = 'date';
    input.addEventListener('mousedown', () => acts.focus(c.id));
    input.addEventListener('change', () => {
      if (input.value) acts.send(['date', c.id, input.value]);
    });
    return {
      root: input,
      focusTarget: input,
      update(s) {
        // The clerk may be half-way through a date; the last full one stays until sent.
        if (document.activeElement !== input || !acts.busy()) input.value = s.value || '';
        input.disabled = !s.enabled;
      },
    };
  }

  function unknown(c) {
    const root = make('div', 'ctl unknown');
    root.title = `${c.kind} ${c.id}`;
    return {root, update() {}};
  }

  const builders = {
    Label: label,
    Frame: frame,
    CommandButton: button,
    CheckBox: checkBox,
    TextBox: textBox,
    ComboBox: comboBox,
    ListBox: listBox,
    ListView: listView,
    DatePicker: datePicker,
    Grid: (c, acts) => GridView.build(c, acts),
  };

  return {
    caption,
    closeChoices,
    build(c, acts) {
      const built = (builders[c.kind] || unknown)(c, acts);
      built.root.dataset.control = c.id;
      return built;
    },
  };
})();
