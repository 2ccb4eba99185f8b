// The form's dialogs as modal boxes over the page. Each kind takes the clerk's
// answer in the words the server's /api/answer reads for it.
'use strict';

const Dialogs = (() => {
  const backdrop = () => document.getElementById('dialog-backdrop');
  const box = () => document.getElementById('dialog');
  let shownKey = null;

  // Button sets of a message box and the code each button answers.
  const MESSAGE_BUTTONS = {
    0: [['&OK', 1]],
    1: [['&OK', 1], ['&Cancel', 2]],
    2: [['&Abort', 3], ['&Retry', 4], ['&Ignore', 5]],
    3: [['&Yes', 6], ['&No', 7], ['&Cancel', 2]],
    4: [['&Yes', 6], ['&No', 7]],
    5: [['&Retry', 4], ['&Cancel', 2]],
  };

  function make(tag, className, text) {
    const element = document.createElement(tag);
    if (className) element.className = className;
    if (text !== undefined) element.textContent = text;
    return element;
  }

  function buttonRow(buttons) {
    const row = make('div', 'dialog-buttons');
    for (const [text, act] of buttons) {
      const b = make('button', 'button');
      b.type = 'button';
      Controls.caption(b, text);
      b.addEventListener('click', act);
      row.append(b);
    }
    return row;
  }

  // A list the clerk chooses one row of; double-click chooses and answers.
  function choiceList(choices, onPick, onAnswer) {
    const list = make('div', 'listbox dialog-list');
    list.tabIndex = 0;
    let chosen = choices.length > 0 ? 0 : -1;
    const rows = choices.map((choice, i) => {
      const row = make('div', 'list-row', choice);
      row.addEventListener('click', () => mark(i));
      row.addEventListener('dblclick', () => onAnswer(choices[i]));
      list.append(row);
      return row;
    });
    function mark(i) {
      chosen = i;
      rows.forEach((row, j) => row.classList.toggle('selected', j === i));
      onPick(choices[i]);
    }
    list.addEventListener('keydown', (e) => {
      if (e.key === 'ArrowDown' && chosen + 1 < choices.length) mark(chosen + 1);
      else if (e.key === 'ArrowUp' && chosen > 0) mark(chosen - 1);
      else return;
      e.preventDefault();
    });
    if (chosen >= 0) mark(chosen);
    return list;
  }

  function messageBox(d, answer) {
    const set = MESSAGE_BUTTONS[(d.buttons || 0) & 7] || MESSAGE_BUTTONS[0];
    const codes = set.map(([, code]) => code);
    const escape = codes.includes(2) ? 2 : codes.length === 1 ? codes[0] : null;
    return {
      body: [make('p', 'dialog-text', d.text || '')],
      buttons: set.map(([text, code]) => [text, () => answer([String(code)])]),
      escape: escape === null ? null : () => answer([String(escape)]),
      accessKeys: Object.fromEntries(set.map(([text, code]) => [text[1].toLowerCase(), () => answer([String(code)])])),
    };
  }

  function textInput(d, answer) {
    const input = make('input', 'text');
    input.type = d.masked ? 'password' : 'text';
    input.autocomplete = 'off';
    const ok = () => answer([input.value]);
    return {
      body: [make('p', 'dialog-text', d.text || ''), input],
      buttons: [['&OK', ok], ['&Cancel', () => answer(['cancel'])]],
      enter: ok,
      escape: () => answer(['cancel']),
      first: input,
    };
  }

  // A choice among the offered codes, or none of them.
  function choice(d, answer) {
    const choices = d.choices || [];
    let picked = choices[0];
    const list = choiceList(choices, (value) => (picked = value), (value) => answer([value]));
    const ok = () => picked !== undefined && answer([picked]);
    return {
      body: [make('p', 'dialog-text', d.text || ''), list],
      buttons: [['&OK', ok], ['&None', () => answer(['none'])]],
      enter: ok,
      escape: () => answer(['none']),
      first: list,
    };
  }

  function documentChoice(d, answer) {
    const choices = d.choices || [];
    const input = make('input', 'text');
    input.type = 'text';
    const body = [make('p', 'dialog-text', d.text || 'Document reference:')];
    if (choices.length > 0) {
      body.push(choiceList(choices, (value) => (input.value = value), (value) => answer([value])));
    }
    body.push(input);
    const ok = () => answer([input.value]);
    // An empty reference is the clerk choosing none.
    return {
      body,
      buttons: [['&OK', ok], ['&Cancel', () => answer([''])]],
      enter: ok,
      escape: () => answer(['']),
      first: input,
    };
  }

  function confirmSave(d, answer) {
    const text = d.text || 'Do you want to save the lines before closing?';
    return {
      body: [make('p', 'dialog-text', text)],
      buttons: [['&Yes', () => answer(['true'])], ['&No', () => answer(['false'])]],
      accessKeys: {y: () => answer(['true']), n: () => answer(['false'])},
    };
  }

  function memo(d, answer) {
    const memos = d.choices || [];
    const inputs = [0, 1, 2].map((i) => {
      const input = make('input', 'text');
      input.type = 'text';
      input.value = memos[i] || '';
      return input;
    });
    const fields = inputs.map((input, i) => {
      const line = make('label', 'memo-line', `Memo ${i + 1}`);
      line.append(input);
      return line;
    });
    const ok = () => answer([...inputs.map((input) => input.value), 'ok']);
    return {
      body: [make('p', 'dialog-text', d.text || ''), ...fields],
      buttons: [['&OK', ok], ['&Cancel', () => answer(['cancel'])]],
      enter: ok,
      escape: () => answer(['cancel']),
      first: inputs[0],
    };
  }

  // The free items of other category groups: the entries as the form shows them;
  // the clerk keeps them, or drops them all, or leaves everything as it was.
  function otherGroupItems(d, answer) {
    const list = make('div', 'listbox dialog-list');
    for (const entry of d.choices || []) list.append(make('div', 'list-row', entry));
    const dropAll = make('input');
    dropAll.type = 'checkbox';
    const dropLine = make('label', 'checkbox-line');
    dropLine.append(dropAll, 'Drop all these items');
    const ok = () => answer(dropAll.checked ? ['drop', 'all', 'ok'] : ['ok']);
    return {
      body: [make('p', 'dialog-text', d.text || ''), list, dropLine],
      buttons: [['&OK', ok], ['&Cancel', () => answer(['cancel'])]],
      enter: ok,
      escape: () => answer(['cancel']),
    };
  }

  const kinds = {
    AskMessage: messageBox,
    InputPassword: textInput,
    InputBoxE: textInput,
    SelectFreeItem: choice,
    SelectScheme: choice,
    SelectDocument: documentChoice,
    ConfirmSaveOnExit: confirmSave,
    ShowMemoDialog: memo,
    ShowDocumentInfoDialog: otherGroupItems,
  };

  const TITLES = {
    InputPassword: 'Password',
    InputBoxE: 'Input',
    SelectFreeItem: 'Free Item',
    SelectScheme: 'Scheme',
    SelectDocument: 'Select Document',
    ConfirmSaveOnExit: 'Close',
    ShowMemoDialog: 'Memo',
    ShowDocumentInfoDialog: 'Items of Other Groups',
  };

  function hide() {
    backdrop().hidden = true;
    box().textContent = '';
    box().onkeydown = null;
    shownKey = null;
  }

  // Shows the dialog unless the same one is already up (a redraw keeps what the
  // clerk has typed into it).
  function show(d, send) {
    const key = JSON.stringify(d);
    if (key === shownKey) return;
    shownKey = key;
    let answered = false;
    const answer = (values) => {
      if (answered) return;
      answered = true;
      hide();
      send(values);
    };
    const content = (kinds[d.kind] || messageBox)(d, answer);
    const dialog = box();
    dialog.textContent = '';
    dialog.dataset.kind = d.kind;
    dialog.append(make('div', 'title-bar', d.title || TITLES[d.kind] || 'Dispatch'));
    const body = make('div', 'dialog-body');
    body.append(...content.body);
    dialog.append(body, buttonRow(content.buttons));
    dialog.onkeydown = (e) => {
      e.stopPropagation();
      if (e.key === 'Escape' && content.escape) {
        e.preventDefault();
        content.escape();
      } else if (e.key === 'Enter' && content.enter && e.target.tagName !== 'BUTTON') {
        e.preventDefault();
        content.enter();
      } else if (content.accessKeys && !e.ctrlKey && content.accessKeys[e.key.toLowerCase()]) {
        e.preventDefault();
        content.accessKeys[e.key.toLowerCase()]();
      }
    };
    backdrop().hidden = false;
    (content.first || dialog.querySelector('.dialog-buttons button')).focus();
  }

  return {show, hide, isOpen: () => !backdrop().hidden};
})();
