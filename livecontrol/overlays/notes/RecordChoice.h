#pragma once

#include <QList>

/// Which of the selected records of a list is the current one: the one that was selected last.
class RecordChoice {
public:
    /// Number of the record, from 1; 0 for none.
    int current() const { return m_current; }
    /// The numbers of all selected records, as they came.
    const QList<int>& selected() const { return m_selected; }

    void select(const QList<int>& ids) {
        if (ids.size() <= 1) {
            m_current = ids.value(0);
        } else if (ids.size() > m_selected.size()) {
            for (const int id : ids) {
                m_current = m_selected.contains(id) ? m_current : id;
            }
        } else {
            leaveUnselected(ids);
        }
        m_selected = ids;
    }

private:
    /// If the current record is not among them any more, the next one of the old selection that is.
    void leaveUnselected(const QList<int>& ids) {
        const int from = m_selected.indexOf(m_current);
        for (int step = 0; from >= 0 && step < m_selected.size(); ++step) {
            const int id = m_selected.at((from + step) % m_selected.size());
            if (ids.contains(id)) {
                m_current = id;
                return;
            }
        }
    }

    QList<int> m_selected;
    int m_current = 0;
};
